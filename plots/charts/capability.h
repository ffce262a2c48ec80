#pragma once

#include <QVector>

#include <optional>

/// Tolerance limits; each may be missing. A value on a limit is good.
struct ToleranceLimits
{
    std::optional<double> lower;
    std::optional<double> upper;

    [[nodiscard]] bool isEmpty() const { return !lower && !upper; }
    /// True if both are set and leave nothing in between.
    [[nodiscard]] bool isInverted() const { return lower && upper && *lower >= *upper; }
    [[nodiscard]] bool isOutside(double value) const;
};

[[nodiscard]] bool operator==(const ToleranceLimits &a, const ToleranceLimits &b);

/// How well a process stays within its limits.
struct Capability
{
    static constexpr double kGood = 1.33;
    static constexpr double kFair = 1.00;

    std::optional<double> cp;  ///< (upper - lower) / 6 sigma; needs both limits
    std::optional<double> cpk; ///< distance from the mean to the nearer limit / 3 sigma; needs one limit
};

enum class CapabilityGrade { Unknown, Poor, Fair, Good };

/// Based on the sigma of the population, whose squares are divided by n. Nothing for fewer than two values and for
/// limits that are inverted. Where all values are equal both are infinite, a Cpk with the sign of the mean's distance
/// from the limit (0 on the limit).
[[nodiscard]] Capability capability(const QVector<double> &values, const ToleranceLimits &limits);
[[nodiscard]] CapabilityGrade gradeOf(const Capability &capability);

/// How many of the values lie outside.
[[nodiscard]] int countOutside(const QVector<double> &values, const ToleranceLimits &limits);
