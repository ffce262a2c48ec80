#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

class EvaluationData;
class Model;

/// A page that follows the model while it is shown: what changes in short succession is looked at once. While it is
/// hidden it does nothing, and catches up when it is shown.
class EvaluationPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRefreshInterval = 50; ///< milliseconds from a change of the model to the next refresh

    explicit EvaluationPage(QWidget *parent = nullptr);

    /// Not owned; shared with the other pages.
    void setData(EvaluationData *data);

protected:
    /// nullptr as long as there is none with a model.
    [[nodiscard]] EvaluationData *data() const;
    /// Brings everything up to date; called only while there are data with a model.
    virtual void refresh() = 0;
    /// Does so at once, whether the page is shown or not.
    void refreshNow();
    virtual void retranslateUi() = 0;

    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void onData_modelChanged();
    void onModel_changed();
    void onRefreshTimer_timeout();

private:
    QPointer<EvaluationData> m_data;
    QPointer<Model> m_followed;
    QTimer m_refreshTimer;
    bool m_outOfDate = true;
};
