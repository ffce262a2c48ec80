#include "kit/material/qtmaterialtextfieldplaces.h"

#include <QFontMetrics>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int kTouchHeight = 40; // pixels that a finger in a glove finds
constexpr int kOwnInset = 2;     // pixels of the inset that QLineEdit adds to the text margins itself
constexpr int kLineRoom = 4;     // pixels below the text, the line included
constexpr int kLeastAir = 6;     // pixels above and below the text

} // namespace

QFont QtMaterialTextFieldPlaces::smaller(const QFont &font)
{
    QFont result = font;
    if (result.pixelSize() > 0)
        result.setPixelSize(std::max(1, qRound(result.pixelSize() * kSmall)));
    else
        result.setPointSizeF(result.pointSizeF() * kSmall);
    return result;
}

int QtMaterialTextFieldPlaces::labelRoom() const
{
    return hasLabel ? QFontMetrics(smallFont).height() : 0;
}

int QtMaterialTextFieldPlaces::supportRoom() const
{
    return hasSupport ? QFontMetrics(smallFont).height() + 2 : 0;
}

int QtMaterialTextFieldPlaces::innerHeight() const
{
    return textHeight + 2;
}

QMargins QtMaterialTextFieldPlaces::textMargins() const
{
    const int air = std::max(kLeastAir, kTouchHeight - labelRoom() - innerHeight() - kLineRoom);
    const int top = labelRoom() + air / 2;
    const int bottom = air - air / 2 + kLineRoom + supportRoom();
    const int begin = kInset - kOwnInset;
    const int end = hasCross ? innerHeight() + kInset : begin;
    const bool isLeftToRight = direction == Qt::LeftToRight;
    return {isLeftToRight ? begin : end, top, isLeftToRight ? end : begin, bottom};
}

int QtMaterialTextFieldPlaces::height() const
{
    const QMargins margins = textMargins();
    return margins.top() + innerHeight() + margins.bottom();
}

qreal QtMaterialTextFieldPlaces::lineY() const
{
    return field.height() - supportRoom() - kLineRoom / 2.0;
}

QRect QtMaterialTextFieldPlaces::supportRect() const
{
    const int room = supportRoom();
    return {kInset, field.height() - room, field.width() - 2 * kInset, room};
}

QRect QtMaterialTextFieldPlaces::supportTextRect() const
{
    const int taken = counter.isEmpty() ? 0 : QFontMetrics(smallFont).horizontalAdvance(counter) + 2 * kInset;
    return QStyle::visualRect(direction, supportRect(), supportRect().adjusted(0, 0, -taken, 0));
}

QRect QtMaterialTextFieldPlaces::crossRect() const
{
    const int side = std::min(std::max(kTouchHeight, textHeight), field.width() / 2);
    const QRect place(field.width() - side, 0, side, field.height() - supportRoom());
    return QStyle::visualRect(direction, QRect(QPoint(), field), place);
}
