#pragma once

#include "model/sensordescription.h"

#include <array>
#include <optional>

/// Lowest and highest value that a sensor had.
struct HeldRange
{
    double minimum = 0.0;
    double maximum = 0.0;

    [[nodiscard]] bool operator==(const HeldRange &other) const
    {
        return minimum == other.minimum && maximum == other.maximum;
    }
};

/// The newest sample line, and what was held since the last reset. Keeps nothing else, so that its size does not
/// grow while the box sends.
class LiveValues
{
public:
    /// A value is fresh for three sampling periods, but at least for this many milliseconds.
    static constexpr qint64 kShortestFreshness = 1000;

    /// `period` (the sampling period of the box) and `now` (of any clock that only goes forward) are in milliseconds. A
    /// value that is not finite counts as 0.
    void add(const std::array<double, kNumSensors> &values, qint64 now, int period);
    /// The next value of the channel begins a new range.
    void resetHeld(int channel);
    /// No more values are expected: the latest ones stay, but are no longer fresh.
    void expire() { m_fresh = false; }

    [[nodiscard]] bool isEmpty() const { return !m_any; }
    /// None before the first sample or for a channel outside 0 to 4.
    [[nodiscard]] std::optional<double> latest(int channel) const;
    [[nodiscard]] std::optional<HeldRange> held(int channel) const;
    [[nodiscard]] bool isFresh(qint64 now) const;

private:
    std::array<double, kNumSensors> m_latest{};
    std::array<HeldRange, kNumSensors> m_held{};
    std::array<bool, kNumSensors> m_isHeld{};
    qint64 m_time = 0;
    int m_period = 0;
    bool m_any = false;
    bool m_fresh = false;
};
