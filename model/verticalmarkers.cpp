#include "model/verticalmarkers.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

bool isMarker(int index)
{
    return index >= 0 && index < kNumVerticalMarkers;
}

} // namespace

VerticalMarkers withMarkerAt(VerticalMarkers markers, int index, int position)
{
    if (!isMarker(index))
        return markers;
    const int target = std::max(position, 0);
    auto marker = markers.begin() + index;
    *marker = target;
    std::for_each(markers.begin(), marker, [=](int &before) { before = std::min(before, target); });
    std::for_each(marker, markers.end(), [=](int &behind) { behind = std::max(behind, target); });
    return markers;
}

VerticalMarkers withMarkerDistance(VerticalMarkers markers, int index, int distance)
{
    if (!isMarker(index))
        return markers;
    const auto marker = markers.begin() + index;
    // Sums of two positions may not fit into an int.
    const std::int64_t base = index == 0 ? 0 : *std::prev(marker);
    const std::int64_t shift = base + std::max(distance, 0) - *marker;
    std::for_each(marker, markers.end(), [=](int &behind) {
        constexpr std::int64_t kLast = std::numeric_limits<int>::max();
        behind = static_cast<int>(std::clamp<std::int64_t>(behind + shift, 0, kLast));
    });
    return markers;
}
