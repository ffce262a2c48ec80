#pragma once

#include "plots/evaluation/common/modelpage.h"

class EvaluationData;

/// A page that shows figures from the data that several pages share, and follows the model of that data.
class EvaluationPage : public ModelPage
{
    Q_OBJECT

public:
    using ModelPage::ModelPage;

    /// Not owned; shared with the other pages.
    void setData(EvaluationData *data);

protected:
    /// nullptr while there is none, or none with a model.
    [[nodiscard]] EvaluationData *data() const;

    void showEvent(QShowEvent *event) override;

private slots:
    void onData_modelChanged();

private:
    QPointer<EvaluationData> m_data;
};
