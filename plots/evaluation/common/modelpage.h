#pragma once

#include "model/model.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

/// A page that follows a model while it is shown: what changes in short succession is looked at once. While it is
/// hidden it does nothing, and catches up when it is shown.
class ModelPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRefreshInterval = 50; ///< milliseconds from a change of the model to the next refresh

    explicit ModelPage(QWidget *parent = nullptr);

protected:
    /// Not owned; nullptr: none any more.
    void follow(Model *model);
    /// nullptr if none is followed or if it is gone.
    [[nodiscard]] Model *model() const { return m_model; }

    /// Brings everything up to date; called only while there is a model.
    virtual void refresh() = 0;
    virtual void retranslateUi() = 0;
    /// Measurements were removed or have changed places.
    virtual void structureChanged() {}

    /// Does so within kRefreshInterval, or as soon as the page is shown.
    void scheduleRefresh();
    /// Does so at once, whether the page is shown or not.
    void refreshNow();
    [[nodiscard]] bool isOutOfDate() const { return m_outOfDate; }

    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void onModel_dataChanged();
    void onModel_projectChanged();
    void onRefreshTimer_timeout();

private:
    QPointer<Model> m_model;
    QTimer m_refreshTimer;
    quint64 m_seenRevision = 0;
    bool m_outOfDate = true;
};
