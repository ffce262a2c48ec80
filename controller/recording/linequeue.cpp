#include "controller/recording/linequeue.h"

#include "device/mesotraconnector.h"
#include "model/model.h"

#include <utility>

namespace {

// Interval in ms between two checks whether the model has finished with its file.
constexpr int kRetryInterval = 20;

} // namespace

LineQueue::LineQueue(MesotraConnector &connector, const Model &model, Handler handler)
    : m_connector(connector)
    , m_model(model)
    , m_handler(std::move(handler))
{
    m_resumeTimer.setSingleShot(true);
    QObject::connect(&m_resumeTimer, &QTimer::timeout, &m_resumeTimer, [this] { resume(); });
}

bool LineQueue::isHeld() const
{
    return m_holds > 0 || m_handling || m_model.isBusy();
}

void LineQueue::take(const QString &line)
{
    if (!isHeld() && m_waiting.empty()) {
        handle(line);
        return;
    }
    m_waiting.push_back(line);
    m_connector.setPaused(true);
    if (!m_resumeTimer.isActive())
        m_resumeTimer.start(kRetryInterval);
}

void LineQueue::flush()
{
    while (!m_waiting.empty())
        handleFirst();
}

void LineQueue::hold()
{
    ++m_holds;
    m_connector.setPaused(true);
}

void LineQueue::release()
{
    // Not at once: whoever held the lines may have more to do before the next one.
    if (--m_holds == 0)
        m_resumeTimer.start(0);
}

void LineQueue::resume()
{
    while (!isHeld() && !m_waiting.empty())
        handleFirst();
    if (isHeld())
        m_resumeTimer.start(kRetryInterval);
    else
        m_connector.setPaused(false);
}

void LineQueue::handleFirst()
{
    const QString line = m_waiting.front();
    m_waiting.pop_front();
    handle(line);
}

void LineQueue::handle(const QString &line)
{
    m_handling = true; // a handler may run an event loop, in which further lines arrive
    m_handler(line);
    m_handling = false;
}
