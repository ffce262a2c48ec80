#pragma once

#include "view/sensors/livevalues.h"

#include <QString>

#include <optional>

/// The limits of a sensor's value, each of them optional. If there are both, lower < upper.
struct SensorLimits
{
    /// What the model stores for a limit that is not set.
    static constexpr double kNoLower = -100000.0;
    static constexpr double kNoUpper = 100000.0;

    std::optional<double> lower;
    std::optional<double> upper;

    /// As the model stores them.
    [[nodiscard]] double minimum() const { return lower.value_or(kNoLower); }
    [[nodiscard]] double maximum() const { return upper.value_or(kNoUpper); }
    [[nodiscard]] bool isAny() const { return lower || upper; }
    [[nodiscard]] bool contains(double value) const { return !isBelow(value) && !isAbove(value); }
    [[nodiscard]] bool isBelow(double value) const { return lower && value < *lower; }
    [[nodiscard]] bool isAbove(double value) const { return upper && value > *upper; }
    [[nodiscard]] bool operator==(const SensorLimits &other) const
    {
        return lower == other.lower && upper == other.upper;
    }
};

/// From the numbers of a description; limits that are not in order count as not set.
[[nodiscard]] SensorLimits sensorLimits(double minimum, double maximum);

/// The range that a display covers: its ends are multiples of the step between two labels.
struct SensorScale
{
    double low = 0.0;
    double high = 0.0;
    double step = 0.0;
    int labelDecimals = 0;
    int valueDecimals = 2;

    /// False while nothing is known about the values to expect.
    [[nodiscard]] bool isKnown() const { return high > low; }
    /// 0 at the low end, 1 at the high one; clamped outside.
    [[nodiscard]] double fraction(double value) const;
    [[nodiscard]] int numSteps() const;
    [[nodiscard]] bool operator==(const SensorScale &other) const
    {
        return low == other.low && high == other.high && step == other.step;
    }
    [[nodiscard]] bool operator!=(const SensorScale &other) const { return !(*this == other); }
};

/// A little wider than the limits, so that values outside are visible; an end without a limit follows the held values.
/// Without limits and values the scale is not known.
[[nodiscard]] SensorScale sensorScale(const SensorLimits &limits, const std::optional<HeldRange> &held);

/// The value with a fixed number of decimals, so that the digits do not jump; in the current language. Very large
/// numbers are written with an exponent.
[[nodiscard]] QString sensorValueText(double value, int decimals);
