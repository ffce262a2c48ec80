#include "plots/evaluation/common/trendgeometry.h"

#include "plots/common/localnumber.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLargest = 1e300; // beyond this the difference of two values overflows

void include(std::optional<TrendRange> &range, double value)
{
    const double bounded = std::clamp(value, -kLargest, kLargest);
    range = range ? TrendRange{std::min(range->minimum, bounded), std::max(range->maximum, bounded)}
                  : TrendRange{bounded, bounded};
}

double niceStep(double atLeast)
{
    const double power = std::pow(10.0, std::floor(std::log10(atLeast)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= atLeast)
            return factor * power;
    }
    return 10.0 * power;
}

} // namespace

TrendRange trendRange(const TrendValues &values, const ToleranceLimits &limits)
{
    std::optional<TrendRange> range;
    for (const std::optional<double> &value : values) {
        if (value)
            include(range, *value);
    }
    for (const std::optional<double> &limit : {limits.lower, limits.upper}) {
        if (limit)
            include(range, *limit);
    }
    if (!range)
        return {};
    const double span = range->maximum - range->minimum;
    const double middle = std::max(std::abs(range->minimum), std::abs(range->maximum));
    // With a smaller span neighbouring marks would be the same double.
    const double room = span > middle * 1e-12 ? span / 12.0 : std::max(0.5, middle / 20.0);
    return {range->minimum - room, range->maximum + room};
}

TrendTicks trendTicks(TrendRange range, int most)
{
    const double span = range.maximum - range.minimum;
    if (!(span > 0.0) || !std::isfinite(span) || most < 1)
        return {};
    TrendTicks ticks;
    ticks.step = niceStep(span / most);
    const double first = std::ceil(range.minimum / ticks.step);
    // Multiples instead of repeated additions, which would let rounding errors grow.
    for (int i = 0; i <= most && (first + i) * ticks.step <= range.maximum; ++i)
        ticks.values.append((first + i) * ticks.step);
    return ticks;
}

QString tickText(double value, double step)
{
    if (!(step > 0.0) || std::abs(value) >= 1e6 || step < 1e-6)
        return localNumber(value, 'g', 6);
    const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
    // Without the comparison a negative zero would become "-0".
    return localNumber(value == 0.0 ? 0.0 : value, 'f', decimals);
}

double TrendGeometry::spacing() const
{
    return count > 1 ? area.width() / (count - 1) : area.width();
}

double TrendGeometry::x(int shot) const
{
    return count > 1 ? area.left() + shot * spacing() : area.center().x();
}

double TrendGeometry::y(double value) const
{
    const double bounded = std::clamp(value, range.minimum, range.maximum);
    return area.bottom() - area.height() * ((bounded - range.minimum) / (range.maximum - range.minimum));
}

int TrendGeometry::shotAt(double x) const
{
    if (count < 1)
        return -1;
    if (count == 1 || !(area.width() > 0.0))
        return 0;
    return std::clamp(static_cast<int>(std::lround((x - area.left()) / spacing())), 0, count - 1);
}

std::vector<TrendColumn> trendColumns(const TrendValues &values, const TrendGeometry &geometry)
{
    std::vector<TrendColumn> columns;
    int lastPixel = -1;
    for (int shot = 0; shot < static_cast<int>(values.size()); ++shot) {
        const std::optional<double> &value = values[static_cast<std::size_t>(shot)];
        if (!value)
            continue;
        const int pixel = static_cast<int>(geometry.x(shot));
        if (pixel != lastPixel)
            columns.push_back({shot, *value, *value});
        columns.back().minimum = std::min(columns.back().minimum, *value);
        columns.back().maximum = std::max(columns.back().maximum, *value);
        lastPixel = pixel;
    }
    return columns;
}
