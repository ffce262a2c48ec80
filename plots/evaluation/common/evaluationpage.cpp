#include "plots/evaluation/common/evaluationpage.h"

#include "plots/common/logging.h"
#include "plots/evaluation/common/evaluationdata.h"

void EvaluationPage::setData(EvaluationData *data)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (m_data)
        m_data->disconnect(this);
    m_data = data;
    if (data)
        connect(data, &EvaluationData::modelChanged, this, &EvaluationPage::onData_modelChanged);
    onData_modelChanged(); // the data may already have a model
}

EvaluationData *EvaluationPage::data() const
{
    return m_data && m_data->model() ? m_data.data() : nullptr;
}

void EvaluationPage::onData_modelChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    follow(m_data ? m_data->model() : nullptr);
}

void EvaluationPage::showEvent(QShowEvent *event)
{
    ModelPage::showEvent(event);
    refreshNow(); // the model may have changed while its signals were blocked
}
