#include "controller/recording/shotclock.h"

#include <QElapsedTimer>

#ifdef Q_OS_LINUX
#include <ctime>
#endif

namespace {

/// Qt's timer stands still while a computer with Linux sleeps.
qint64 systemCounter()
{
#ifdef Q_OS_LINUX
    timespec time{};
    if (clock_gettime(CLOCK_BOOTTIME, &time) == 0)
        return qint64{time.tv_sec} * 1000 + time.tv_nsec / 1000000;
#endif
    QElapsedTimer timer;
    timer.start();
    return timer.msecsSinceReference();
}

} // namespace

ShotClock::ShotClock(WallClock wallClock, Counter counter)
    : m_wallClock(wallClock ? std::move(wallClock) : [] { return QDateTime::currentDateTimeUtc(); })
    , m_counter(counter ? std::move(counter) : systemCounter)
{}

QDateTime ShotClock::now()
{
    const qint64 counter = m_counter();
    if (!m_first)
        m_first = Start{m_wallClock().toUTC(), counter};
    return m_first->time.addMSecs(counter - m_first->counter).toLocalTime();
}
