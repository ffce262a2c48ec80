#include "view/common/cyclemarkers.h"

#include "model/verticalmarkers.h"

#include <algorithm>

QColor cyclemarkers::color(int marker)
{
    constexpr std::array<QRgb, kNumVerticalMarkers> colors{0xff8e24aa, 0xff0077b6, 0xff2e7d32, 0xffe65100};
    return marker >= 0 && marker < kNumVerticalMarkers ? QColor(colors.at(static_cast<std::size_t>(marker))) : QColor();
}

int cyclemarkers::markerOfPhase(int phase)
{
    return std::clamp(phase, 0, kNumVerticalMarkers - 1);
}
