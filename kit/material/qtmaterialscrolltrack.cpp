#include "kit/material/qtmaterialscrolltrack.h"

#include <algorithm>
#include <cmath>

namespace {

// Doubles hold every difference of two ints.
double difference(int larger, int smaller)
{
    return static_cast<double>(larger) - static_cast<double>(smaller);
}

} // namespace

int QtMaterialScrollTrack::thumbLength() const
{
    if (!isNeeded())
        return std::max(0, length);
    const double shown = std::max(0, page);
    const double natural = length * shown / (shown + difference(maximum, minimum));
    return std::clamp(static_cast<int>(std::lround(natural)), std::min(leastThumb, length / 2), length);
}

int QtMaterialScrollTrack::thumbStart(int value) const
{
    if (!isNeeded())
        return 0;
    const double part = difference(std::clamp(value, minimum, maximum), minimum) / difference(maximum, minimum);
    return static_cast<int>(std::lround(part * (length - thumbLength())));
}

QtMaterialScrollTrack::Part QtMaterialScrollTrack::partAt(int position, int value) const
{
    const int start = thumbStart(value);
    if (position < start)
        return Part::Before;
    return position < start + thumbLength() ? Part::Thumb : Part::After;
}

int QtMaterialScrollTrack::valueAt(int thumbStart) const
{
    const int way = length - thumbLength();
    if (!isNeeded() || way <= 0)
        return minimum;
    const double part = std::clamp(static_cast<double>(thumbStart) / way, 0.0, 1.0);
    return static_cast<int>(std::llround(minimum + part * difference(maximum, minimum)));
}
