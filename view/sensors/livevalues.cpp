#include "view/sensors/livevalues.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kPeriods = 3;

std::optional<std::size_t> place(int channel)
{
    return channel >= 0 && channel < kNumSensors ? std::optional<std::size_t>(channel) : std::nullopt;
}

} // namespace

void LiveValues::add(const std::array<double, kNumSensors> &values, qint64 now, int period)
{
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double value = std::isfinite(values[i]) ? values[i] : 0.0;
        m_latest[i] = value;
        HeldRange &held = m_held[i];
        held = m_isHeld[i] ? HeldRange{std::min(held.minimum, value), std::max(held.maximum, value)}
                           : HeldRange{value, value};
        m_isHeld[i] = true;
    }
    m_time = now;
    m_period = period;
    m_any = true;
    m_fresh = true;
}

void LiveValues::resetHeld(int channel)
{
    if (const auto i = place(channel))
        m_isHeld[*i] = false;
}

std::optional<double> LiveValues::latest(int channel) const
{
    const auto i = place(channel);
    return m_any && i ? std::optional<double>(m_latest[*i]) : std::nullopt;
}

std::optional<HeldRange> LiveValues::held(int channel) const
{
    const auto i = place(channel);
    return i && m_isHeld[*i] ? std::optional<HeldRange>(m_held[*i]) : std::nullopt;
}

bool LiveValues::isFresh(qint64 now) const
{
    return m_fresh && now - m_time <= std::max(kShortestFreshness, kPeriods * m_period);
}
