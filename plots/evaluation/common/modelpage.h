#pragma once

#include "kit/small/throttle.h"
#include "kit/small/translatedwidget.h"
#include "model/model.h"

#include <QPointer>

/// A page that follows a model while it is visible: changes in quick succession cause one refresh. A hidden page does
/// nothing and catches up when it is shown.
class ModelPage : public TranslatedWidget
{
    Q_OBJECT

public:
    static constexpr int kRefreshInterval = 50; ///< milliseconds from a change of the model to the next refresh

    explicit ModelPage(QWidget *parent = nullptr);

signals:
    /// The page is about to refresh itself from this model.
    void refreshing(const Model *model);

protected:
    /// Not owned; nullptr: follow none.
    void follow(Model *model);
    /// nullptr if none is followed or if it has been deleted.
    [[nodiscard]] Model *model() const { return m_model; }

    /// Brings everything up to date; called only while there is a model.
    virtual void refresh() = 0;
    /// Measurements were removed or have changed their order.
    virtual void structureChanged() {}
    /// Does nothing: the texts of most pages belong to the widgets that the page is made of.
    void retranslateUi() override {}

    /// Refreshes within kRefreshInterval, or as soon as the page is shown.
    void scheduleRefresh();
    /// Refreshes at once, whether the page is visible or not.
    void refreshNow();
    [[nodiscard]] bool isOutOfDate() const { return m_outOfDate; }

    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void onModel_dataChanged();
    void onModel_projectChanged();
    void onThrottle_due();

private:
    QPointer<Model> m_model;
    Throttle m_throttle{kRefreshInterval};
    quint64 m_seenRevision = 0;
    bool m_outOfDate = true;
};
