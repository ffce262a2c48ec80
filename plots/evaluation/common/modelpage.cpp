#include "plots/evaluation/common/modelpage.h"

#include "plots/common/logging.h"

#include <QEvent>

ModelPage::ModelPage(QWidget *parent)
    : TranslatedWidget(parent)
{
    connect(&m_throttle, &Throttle::due, this, &ModelPage::onThrottle_due);
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

// Called for every sample line: no log line here, the model writes one for every emission.
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
    if (isVisible())
        m_throttle.request();
}

void ModelPage::onThrottle_due()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (isVisible() && m_outOfDate) // it may have been hidden in the meantime
        refreshNow();
}

void ModelPage::refreshNow()
{
    if (!m_model)
        return;
    m_outOfDate = false;
    m_throttle.cancel();
    emit refreshing(m_model);
    refresh();
}

void ModelPage::showEvent(QShowEvent *event)
{
    TranslatedWidget::showEvent(event);
    if (m_outOfDate)
        refreshNow();
}

void ModelPage::changeEvent(QEvent *event)
{
    TranslatedWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        scheduleRefresh(); // names of quantities and sensors are part of what is shown
}
