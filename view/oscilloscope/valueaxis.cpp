#include "view/oscilloscope/valueaxis.h"

#include "plots/oscilloscope/plotgeometry.h"

#include <algorithm>
#include <cmath>

namespace valueaxis {

namespace {

/// The decimal step that has about three digits of the span: numbers that a person would type.
double roundStep(double width)
{
    return std::pow(10.0, std::floor(std::log10(std::max(width, kNarrowestSpan))) - 2.0);
}

/// Rounds both ends to the step.
ValueSpan roundedSpan(ValueSpan span, double (*low)(double), double (*high)(double))
{
    const double step = roundStep(span.maximum - span.minimum);
    const double inverse = std::round(1.0 / step);
    // Dividing by the whole inverse keeps 0.1 at 0.1, which a product with 0.01 does not.
    if (inverse > 1.0)
        return {low(span.minimum * inverse) / inverse, high(span.maximum * inverse) / inverse};
    return {low(span.minimum / step) * step, high(span.maximum / step) * step};
}

double nearest(double value)
{
    return std::round(value);
}

double down(double value)
{
    return std::floor(value);
}

double up(double value)
{
    return std::ceil(value);
}

} // namespace

bool isShowable(ValueSpan span)
{
    return span.minimum < span.maximum - 0.0001;
}

double valuePerPixel(const PlotGeometry &geometry)
{
    return geometry.span() / std::max(geometry.plotHeight(), 1);
}

double valueAt(const PlotGeometry &geometry, int y)
{
    const int bottom = geometry.margin + std::max(geometry.plotHeight(), 1);
    return geometry.minValue + (bottom - y) * valuePerPixel(geometry);
}

ValueSpan fittedSpan(double lowest, double highest)
{
    double air = (highest - lowest) / 20.0;
    if (!(air > 0.0)) // a constant curve has no range to take a share of
        air = std::max(std::abs(highest) / 20.0, 1.0);
    return roundedSpan({lowest - air, highest + air}, down, up);
}

ValueSpan zoomedSpan(ValueSpan span, double about, int steps)
{
    const double factor = std::pow(0.8, steps);
    const double width = (span.maximum - span.minimum) * factor;
    if (width < kNarrowestSpan)
        return span;
    return roundedSpan({about - (about - span.minimum) * factor, about + (span.maximum - about) * factor}, nearest,
                       nearest);
}

ValueSpan movedSpan(ValueSpan span, double distance)
{
    const double step = roundStep(span.maximum - span.minimum);
    const double whole = std::round(distance / step) * step;
    return {span.minimum + whole, span.maximum + whole};
}

ValueSpan boundedSpan(ValueSpan span, ValueSpan limits)
{
    if (span.minimum < limits.minimum)
        span = {limits.minimum, span.maximum + (limits.minimum - span.minimum)};
    if (span.maximum > limits.maximum)
        span = {span.minimum - (span.maximum - limits.maximum), limits.maximum};
    return {std::max(span.minimum, limits.minimum), span.maximum};
}

} // namespace valueaxis
