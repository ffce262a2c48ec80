#include "plots/oscilloscope/plotgeometry.h"

#include <algorithm>
#include <tuple>

namespace {

int saturated(qint64 pixels)
{
    constexpr qint64 far = PlotGeometry::kFarAway;
    return int(std::clamp(pixels, -far, far));
}

} // namespace

int PlotGeometry::xOfSample(qint64 index) const
{
    // Beyond this many samples even a zoom of 1 is far away, and the product below cannot overflow.
    const qint64 distance = std::clamp<qint64>(index - startIndex, -kFarAway, kFarAway);
    return saturated(kLeftMargin + distance * zoom);
}

qint64 PlotGeometry::distanceOfTime(qint64 milliseconds) const
{
    // Whole samples and the rest apart: their sum truncates like milliseconds * zoom / clock and stays in 64 bits.
    const qint64 samples = milliseconds / clock;
    const qint64 rest = milliseconds % clock;
    return (samples - startIndex) * zoom + rest * zoom / clock;
}

int PlotGeometry::xOfTime(qint64 milliseconds) const
{
    return saturated(kLeftMargin + distanceOfTime(milliseconds));
}

bool operator==(const PlotGeometry &a, const PlotGeometry &b)
{
    const auto key = [](const PlotGeometry &g) {
        return std::tie(g.width, g.widgetWidth, g.height, g.margin, g.minValue, g.maxValue, g.startIndex, g.zoom,
                        g.clock);
    };
    return key(a) == key(b);
}

SampleSpan visibleSpan(const PlotGeometry &geometry, int count, int shift)
{
    SampleSpan span;
    const qint64 last = qint64(count) - 1 + shift;
    if (last <= geometry.startIndex)
        return span;
    span.first = std::max(geometry.startIndex, shift);
    span.last = std::min(last, geometry.lastVisibleIndex());
    return span;
}
