#include "controller/link/reconnect.h"

#include <algorithm>
#include <utility>

Reconnect::Reconnect(std::vector<int> delays)
    : m_delays(std::move(delays))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Reconnect::onTimeout);
}

void Reconnect::begin(const QString &address)
{
    const bool goesOn = std::exchange(m_isLinkUnproven, false) && address == m_address;
    m_address = address;
    if (!goesOn) {
        m_error.reset();
        m_attempts = 0;
        m_isReported = false;
    }
    schedule();
}

void Reconnect::noteLink()
{
    m_isLinkUnproven = m_timer.isActive();
    m_timer.stop();
}

void Reconnect::noteBack()
{
    m_isLinkUnproven = false;
}

void Reconnect::end()
{
    m_timer.stop();
    m_isLinkUnproven = false;
}

bool Reconnect::takeReport()
{
    return !std::exchange(m_isReported, true);
}

void Reconnect::schedule()
{
    const auto next = std::min(static_cast<std::size_t>(m_attempts), m_delays.size() - 1);
    m_timer.start(m_delays[next]);
}

void Reconnect::onTimeout()
{
    if (!m_isHeld)
        ++m_attempts;
    schedule(); // an attempt without an answer is replaced by the next one
    if (!m_isHeld)
        emit attemptDue();
}
