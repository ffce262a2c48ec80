#include "view/oscilloscope/taboszilloscope_axes.h"

#include "plots/oscilloscope/osziwidget.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace osziaxes {

namespace {

constexpr qint64 kLargest = std::numeric_limits<int>::max();

int toIndex(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, 0, kLargest));
}

/// The decimal step that has about three digits of the span: numbers that a person would type.
double roundStep(double width)
{
    return std::pow(10.0, std::floor(std::log10(std::max(width, kNarrowestSpan))) - 2.0);
}

/// Rounds both ends to the step; a division by its inverse keeps 0.1 at 0.1.
ValueSpan roundedSpan(ValueSpan span, double (*low)(double), double (*high)(double))
{
    const double step = roundStep(span.maximum - span.minimum);
    const double inverse = std::round(1.0 / step);
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

int visibleSamples(int width, int zoom)
{
    return std::max(width - OsziWidget::kLeftMargin, 0) / std::max(zoom, 1);
}

ScrollState scrollState(int samples, int visible)
{
    if (samples < visible)
        return {};
    return {true, samples - visible, visible / 2};
}

bool followsEnd(int start, int samples, int visible)
{
    return start >= samples - visible - kFollowDistance;
}

int steppedZoom(int zoom, int steps)
{
    for (; steps > 0 && zoom < kMaximumZoom; --steps)
        zoom = std::max(zoom + 1, qRound(zoom * 1.25));
    for (; steps < 0 && zoom > 1; ++steps)
        zoom = std::min(zoom - 1, qRound(zoom / 1.25));
    return std::clamp(zoom, 1, kMaximumZoom);
}

int startAfterZoom(int x, int startIndex, int oldZoom, int newZoom)
{
    const int pixels = x - OsziWidget::kLeftMargin;
    return toIndex(qint64(startIndex) + pixels / std::max(oldZoom, 1) - pixels / std::max(newZoom, 1));
}

int toMilliseconds(int sample, int clock)
{
    return static_cast<int>(std::clamp<qint64>(qint64(sample) * clock, std::numeric_limits<int>::min(), kLargest));
}

ValueSpan fittedSpan(double lowest, double highest)
{
    double air = (highest - lowest) / 20.0;
    if (!(air > 0.0))
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

} // namespace osziaxes
