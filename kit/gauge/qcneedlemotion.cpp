#include "kit/gauge/qcneedlemotion.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFrame = 16;          // ms
constexpr double kArrived = 0.0005; // of the range
constexpr double kMargin = 0.1;     // of the range: how far outside a needle's way begins and ends

} // namespace

QcNeedleMotion::QcNeedleMotion(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(kFrame);
    connect(&m_timer, &QTimer::timeout, this, &QcNeedleMotion::frame);
}

void QcNeedleMotion::setDamping(int milliseconds)
{
    m_damping = std::max(0, milliseconds);
}

void QcNeedleMotion::start()
{
    if (isRunning())
        return;
    m_sinceFrame.start();
    m_timer.start();
}

void QcNeedleMotion::stop()
{
    m_timer.stop();
}

double QcNeedleMotion::advance(double shown, double value, double minimum, double maximum)
{
    const double margin = (maximum / 2 - minimum / 2) * 2.0 * kMargin; // halves: the span of large numbers may overflow
    const auto near = [&](double any) { return std::clamp(any, minimum - margin, maximum + margin); };
    // The time that really passed counts: frames are late on a busy machine.
    const double share = isDamped() ? std::exp(-static_cast<double>(m_sinceFrame.restart()) / m_damping) : 0.0;
    const double target = near(value);
    const double next = target + (near(shown) - target) * share;
    if (std::abs(next - target) > kArrived * margin / kMargin)
        return next;
    stop();
    return value;
}
