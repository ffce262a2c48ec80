#include "plots/evaluationpage.h"

#include "plots/evaluationdata.h"
#include "plots/logging.h"

#include <QEvent>

EvaluationPage::EvaluationPage(QWidget *parent)
    : QWidget(parent)
{
    m_refreshTimer.setSingleShot(true);
    connect(&m_refreshTimer, &QTimer::timeout, this, &EvaluationPage::onRefreshTimer_timeout);
}

void EvaluationPage::setData(EvaluationData *data)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (m_data)
        m_data->disconnect(this);
    m_data = data;
    if (data)
        connect(data, &EvaluationData::modelChanged, this, &EvaluationPage::onData_modelChanged);
    onData_modelChanged();
}

EvaluationData *EvaluationPage::data() const
{
    return m_data && m_data->model() ? m_data.data() : nullptr;
}

void EvaluationPage::onData_modelChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (m_followed)
        m_followed->disconnect(this);
    m_followed = m_data ? m_data->model() : nullptr;
    if (!m_followed)
        return;
    connect(m_followed, &Model::dataChanged, this, &EvaluationPage::onModel_changed);
    connect(m_followed, &Model::projectChanged, this, &EvaluationPage::onModel_changed);
    onModel_changed();
}

// Comes for every sample line: no log line here, the model writes one for every emission.
void EvaluationPage::onModel_changed()
{
    m_outOfDate = true;
    if (isVisible() && !m_refreshTimer.isActive())
        m_refreshTimer.start(kRefreshInterval);
}

void EvaluationPage::onRefreshTimer_timeout()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (isVisible() && m_outOfDate)
        refreshNow();
}

void EvaluationPage::refreshNow()
{
    if (!data())
        return;
    m_outOfDate = false;
    m_refreshTimer.stop();
    refresh();
}

void EvaluationPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refreshNow(); // the model may have changed without telling
}

void EvaluationPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        onModel_changed(); // names of quantities stand in many places
    }
    QWidget::changeEvent(event);
}
