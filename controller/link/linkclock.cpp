#include "controller/link/linkclock.h"

#include "controller/recording/linequeue.h"

#include <algorithm>

LinkClock::LinkClock(const LineQueue &lines, int interval)
    : m_lines(lines)
{
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &LinkClock::tick);
}

void LinkClock::start()
{
    m_sinceTick.start();
    m_timer.start();
}

void LinkClock::tick()
{
    // After a blocked event loop the timer may come before the bytes that have arrived meanwhile.
    const qint64 most = qint64{2} * m_timer.interval();
    const auto elapsed = static_cast<int>(std::min(m_sinceTick.restart(), most));
    if (!m_lines.isHeld())
        emit ticked(elapsed);
}
