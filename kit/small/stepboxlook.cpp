#include "kit/small/stepboxlook.h"

#include "kit/material/qtmaterialpaint.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>
#include <QVector>

#include <algorithm>

namespace {

constexpr int kArrowWidth = 48; // pixels: hit with a glove on
constexpr int kSmallestArrowWidth = 30;
constexpr int kHeight = 44;
constexpr int kSmallestHeight = 30;
constexpr int kPadding = 8;
constexpr double kRadius = 3.0;
constexpr double kHoverShade = 0.12; // share of black
constexpr double kPressShade = 0.3;

QColor themeColor(const char *key)
{
    return QtMaterialPaint::themeColor(QLatin1String(key));
}

QColor arrowColor(StepBoxLook::Arrow look)
{
    switch (look) {
    case StepBoxLook::Arrow::Inactive:
        return themeColor("disabled3");
    case StepBoxLook::Arrow::Hovered:
        return QtMaterialPaint::between(themeColor("primary1"), Qt::black, kHoverShade);
    case StepBoxLook::Arrow::Pressed:
        return QtMaterialPaint::between(themeColor("primary1"), Qt::black, kPressShade);
    case StepBoxLook::Arrow::Resting:
        break;
    }
    return themeColor("primary1");
}

} // namespace

QString StepBoxText::of(int value, int maximum) const
{
    const QString number = QString::number(value);
    return prefix + (totalShown ? number + QLatin1String(" / ") + QString::number(maximum) : number) + suffix;
}

int StepBoxText::widest(const QFontMetrics &metrics, int minimum, int maximum) const
{
    return std::max(metrics.horizontalAdvance(of(minimum, maximum)), metrics.horizontalAdvance(of(maximum, maximum)));
}

QSize StepBoxLook::usualSize(const QSize &text)
{
    return {text.width() + 2 * (kArrowWidth + kPadding), std::max(kHeight, text.height() + kPadding)};
}

QSize StepBoxLook::smallestSize(const QSize &text)
{
    return {text.width() + 2 * (kSmallestArrowWidth + 2), std::max(kSmallestHeight, text.height() + 2)};
}

QRect StepBoxLook::areaOf(StepBoxPart part) const
{
    // Arrows shrink before the text is cut.
    const int room = (area.width() - textWidth) / 2 - kPadding;
    const int arrow = std::clamp(room, kSmallestArrowWidth, kArrowWidth);
    QRect result;
    if (part == StepBoxPart::Previous)
        result = {0, 0, arrow, area.height()};
    else if (part == StepBoxPart::Next)
        result = {area.width() - arrow, 0, arrow, area.height()};
    else if (part == StepBoxPart::Number)
        result = {arrow, 0, area.width() - 2 * arrow, area.height()};
    return QStyle::visualRect(direction, area, result);
}

StepBoxPart StepBoxLook::partAt(const QPoint &position) const
{
    for (const StepBoxPart part : {StepBoxPart::Previous, StepBoxPart::Number, StepBoxPart::Next}) {
        if (areaOf(part).contains(position))
            return part;
    }
    return StepBoxPart::None;
}

void StepBoxLook::drawFrame(QPainter &painter) const
{
    painter.setPen(QPen(themeColor("border"), 1.0));
    painter.setBrush(themeColor("canvas"));
    painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

void StepBoxLook::drawArrow(QPainter &painter, StepBoxPart part, Arrow look) const
{
    const QRectF place = areaOf(part);
    painter.setPen(Qt::NoPen);
    painter.setBrush(arrowColor(look));
    painter.drawRoundedRect(place, kRadius, kRadius);
    const bool isLeftward = (part == StepBoxPart::Previous) == (direction == Qt::LeftToRight);
    const double half = std::min(place.width(), place.height()) * 0.22;
    const double tip = isLeftward ? -half * 0.55 : half * 0.55;
    const QPointF middle = place.center();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(themeColor(look == Arrow::Inactive ? "accent3" : "alternateText"), 3.0, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QVector<QPointF>{middle + QPointF(-tip, -half), middle + QPointF(tip, 0.0), middle + QPointF(-tip, half)});
}

void StepBoxLook::drawFocus(QPainter &painter) const
{
    QtMaterialPaint::drawFocusRing(painter, areaOf(StepBoxPart::Number), kRadius, themeColor("primary1"));
}
