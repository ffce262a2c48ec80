#pragma once

#include <algorithm>
#include <optional>
#include <utility>

/// The range of values that a plot has to show.
class ValueSpan
{
public:
    void include(double value) { include(value, value); }
    /// `low` must not be above `high`.
    void include(double low, double high)
    {
        m_span =
            m_span ? std::pair(std::min(m_span->first, low), std::max(m_span->second, high)) : std::pair(low, high);
    }

    /// Lower and upper end with a little room below and above; around 0 if nothing was included.
    [[nodiscard]] std::pair<double, double> widened() const
    {
        constexpr double kSmallestRoom = 0.001;
        const auto [low, high] = m_span.value_or(std::pair(0.0, 0.0));
        const double room = high > low ? std::max(kSmallestRoom, (high - low) / 20.0) : 1.0;
        return {low - room, high + room};
    }

private:
    std::optional<std::pair<double, double>> m_span;
};
