#pragma once

#include "plots/evaluation/common/modelpage.h"

class EvaluationData;

/// A page of figures that it shares with other pages.
class EvaluationPage : public ModelPage
{
    Q_OBJECT

public:
    using ModelPage::ModelPage;

    /// Not owned; shared with the other pages.
    void setData(EvaluationData *data);

protected:
    /// nullptr as long as there is none with a model.
    [[nodiscard]] EvaluationData *data() const;

    void showEvent(QShowEvent *event) override;

private slots:
    void onData_modelChanged();

private:
    QPointer<EvaluationData> m_data;
};
