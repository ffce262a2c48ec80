#include "kit/small/throttle.h"

Throttle::Throttle(int interval, Qt::TimerType type, QObject *parent)
    : QObject(parent)
    , m_interval(interval)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(type);
    connect(&m_timer, &QTimer::timeout, this, &Throttle::due);
}

void Throttle::setInterval(int milliseconds)
{
    m_interval = milliseconds;
}

void Throttle::start()
{
    m_timer.start(m_interval);
}

void Throttle::flush()
{
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    emit due();
}
