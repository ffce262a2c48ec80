#include "plots/evaluation/common/modelpage.h"

#include "plots/common/logging.h"

#include <QEvent>

ModelPage::ModelPage(QWidget *parent)
    : QWidget(parent)
{
    m_refreshTimer.setSingleShot(true);
    connect(&m_refreshTimer, &QTimer::timeout, this, &ModelPage::onRefreshTimer_timeout);
}

void ModelPage::follow(Model *model)
{
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (!model)
        return;
    connect(model, &Model::dataChanged, this, &ModelPage::onModel_dataChanged);
    connect(model, &Model::projectChanged, this, &ModelPage::onModel_projectChanged);
    m_seenRevision = model->structureRevision();
    scheduleRefresh();
}

// Comes for every sample line: no log line here, the model writes one for every emission.
void ModelPage::onModel_dataChanged()
{
    if (m_seenRevision != m_model->structureRevision()) {
        m_seenRevision = m_model->structureRevision();
        structureChanged();
    }
    scheduleRefresh();
}

void ModelPage::onModel_projectChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    scheduleRefresh();
}

void ModelPage::scheduleRefresh()
{
    m_outOfDate = true;
    if (isVisible() && !m_refreshTimer.isActive())
        m_refreshTimer.start(kRefreshInterval);
}

void ModelPage::onRefreshTimer_timeout()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (isVisible() && m_outOfDate)
        refreshNow();
}

void ModelPage::refreshNow()
{
    if (!m_model)
        return;
    m_outOfDate = false;
    m_refreshTimer.stop();
    refresh();
}

void ModelPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_outOfDate)
        refreshNow();
}

void ModelPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        scheduleRefresh(); // names stand in many places
    }
    QWidget::changeEvent(event);
}
