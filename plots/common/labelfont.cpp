#include "plots/common/labelfont.h"

#include <QFontInfo>

#include <algorithm>

QFont labelFont(const QFont &widgetFont)
{
    constexpr int kSmallest = 11; // pixels
    QFont font = widgetFont;
    font.setPixelSize(std::max(kSmallest, QFontInfo(widgetFont).pixelSize() * 2 / 3));
    return font;
}
