#include "kit/small/holdrepeat.h"

namespace {

constexpr int kFirstPause = 400; // ms
constexpr int kPause = 80;       // ms
constexpr int kSmallSteps = 25;

} // namespace

HoldRepeat::HoldRepeat(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_timer.setInterval(kPause);
        emit due();
    });
}

void HoldRepeat::start()
{
    m_steps = 0;
    m_timer.start(kFirstPause);
}

bool HoldRepeat::countStep()
{
    ++m_steps;
    return m_steps > kSmallSteps;
}
