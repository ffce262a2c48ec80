#include "view/common/cyclephases.h"

#include "model/verticalmarkers.h"

#include <algorithm>
#include <array>

namespace cyclephases {

QColor markerColor(int index)
{
    static const std::array<QColor, kNumVerticalMarkers> colors{QColor(0x8e, 0x24, 0xaa), QColor(0x00, 0x77, 0xb6),
                                                                QColor(0x2e, 0x7d, 0x32), QColor(0xe6, 0x51, 0x00)};
    return index >= 0 && index < kNumVerticalMarkers ? colors[static_cast<std::size_t>(index)] : QColor();
}

int markerOfPhase(int phase)
{
    return std::clamp(phase, 0, kNumVerticalMarkers - 1);
}

} // namespace cyclephases
