#include "plots/charts/capability.h"

#include "plots/charts/statistics.h"

#include <algorithm>
#include <limits>

namespace {

double ratio(double distance, double sigmas)
{
    if (sigmas > 0.0)
        return distance / sigmas;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    return distance == 0.0 ? 0.0 : distance > 0.0 ? kInfinity : -kInfinity;
}

} // namespace

bool ToleranceLimits::isOutside(double value) const
{
    return (lower && value < *lower) || (upper && value > *upper);
}

bool operator==(const ToleranceLimits &a, const ToleranceLimits &b)
{
    return a.lower == b.lower && a.upper == b.upper;
}

Capability capability(const QVector<double> &values, const ToleranceLimits &limits)
{
    if (values.size() < 2 || limits.isEmpty() || limits.isInverted())
        return {};
    const statistics::Moments moments = statistics::moments(values);
    Capability result;
    if (limits.lower && limits.upper)
        result.cp = ratio(*limits.upper - *limits.lower, 6.0 * moments.sigma);
    double distance = std::numeric_limits<double>::infinity();
    if (limits.lower)
        distance = std::min(distance, moments.mean - *limits.lower);
    if (limits.upper)
        distance = std::min(distance, *limits.upper - moments.mean);
    result.cpk = ratio(distance, 3.0 * moments.sigma);
    return result;
}

CapabilityGrade gradeOf(const Capability &capability)
{
    if (!capability.cpk)
        return CapabilityGrade::Unknown;
    if (*capability.cpk >= Capability::kGood)
        return CapabilityGrade::Good;
    return *capability.cpk >= Capability::kFair ? CapabilityGrade::Fair : CapabilityGrade::Poor;
}

int countOutside(const QVector<double> &values, const ToleranceLimits &limits)
{
    return static_cast<int>(
        std::count_if(values.begin(), values.end(), [&limits](double value) { return limits.isOutside(value); }));
}
