#include "view/oscilloscope/timeaxis.h"

#include "plots/oscilloscope/plotgeometry.h"

#include <algorithm>
#include <limits>

namespace timeaxis {

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
    // At least one pixel per step: a quarter of a small zoom would round to nothing.
    for (; steps > 0 && zoom < kMaximumZoom; --steps)
        zoom = std::max(zoom + 1, qRound(zoom * 1.25));
    for (; steps < 0 && zoom > 1; ++steps)
        zoom = std::min(zoom - 1, qRound(zoom / 1.25));
    return std::clamp(zoom, 1, kMaximumZoom);
}

int startAfterZoom(int x, int startIndex, int oldZoom, int newZoom)
{
    PlotGeometry geometry;
    geometry.zoom = std::max(oldZoom, 1);
    geometry.startIndex = startIndex;
    const qint64 sample = geometry.sampleAt(x);
    geometry.zoom = std::max(newZoom, 1);
    geometry.startIndex = 0;
    const qint64 distance = geometry.sampleAt(x);
    return static_cast<int>(std::clamp<qint64>(sample - distance, 0, std::numeric_limits<int>::max()));
}

int toMilliseconds(int sample, int clock)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<qint64>(qint64(sample) * clock, Limits::min(), Limits::max()));
}

} // namespace timeaxis
