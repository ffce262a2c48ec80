#include "controller/deferredquestions.h"

#include "controller/occupancy.h"

#include <algorithm>
#include <utility>

namespace {

// Interval in ms between two checks whether the waiting questions may be asked.
constexpr int kRetryInterval = 20;

} // namespace

DeferredQuestions::DeferredQuestions(const Occupancy &occupancy)
    : m_occupancy(occupancy)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { askNext(); });
}

void DeferredQuestions::put(Question kind, std::function<void()> ask, int wait)
{
    m_pending.at(static_cast<std::size_t>(kind)) = std::move(ask);
    m_timer.start(wait);
}

void DeferredQuestions::drop(Question kind)
{
    m_pending.at(static_cast<std::size_t>(kind)) = nullptr;
}

void DeferredQuestions::askNext()
{
    const auto next = std::find_if(m_pending.begin(), m_pending.end(), [](const auto &ask) { return bool(ask); });
    if (next == m_pending.end())
        return;
    if (!m_occupancy.mayInterrupt()) {
        m_timer.start(kRetryInterval);
        return;
    }
    // Taken out first: while it is being asked, another one of its kind may come in.
    const std::function<void()> ask = std::exchange(*next, nullptr);
    ask();
    m_timer.start(0); // there may be one of another kind
}
