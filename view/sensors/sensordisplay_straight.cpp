#include "view/sensors/sensordisplay_kinds.h"

#include "app/theme.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace {

constexpr double kUprightFrom = 1.25; // height against width

const QColor kTrough(0xE4, 0xE7, 0xEB);
const QColor kHeldColor(0x61, 0x61, 0x61);

} // namespace

bool StraightDisplay::isUpright() const
{
    return height() > kUprightFrom * width();
}

SensorDisplay::Places StraightDisplay::places() const
{
    const QRectF area = QRectF(rect()).adjusted(10, 2, -10, -2);
    const double footer = footerHeight();
    const double value = (area.height() - footer) * (isUpright() ? 0.2 : 0.46);
    Places parts;
    parts.value = QRectF(area.left(), area.top(), area.width(), value);
    parts.footer = QRectF(area.left(), area.bottom() - footer, area.width(), footer);
    parts.figure = QRectF(QPointF(area.left(), parts.value.bottom()), QPointF(area.right(), parts.footer.top()));
    return parts;
}

QFont StraightDisplay::labelFont(const QRectF &area) const
{
    QFont result = font();
    const double size = isUpright() ? 0.035 * area.height() : 0.16 * area.height();
    result.setPixelSize(static_cast<int>(std::clamp(size, 12.0, 30.0)));
    return result;
}

double StraightDisplay::unitOf(const QRectF &area) const
{
    return isUpright() ? std::min(0.16 * area.width(), 0.05 * area.height()) : 0.16 * area.height();
}

StraightScale StraightDisplay::scaleIn(const QRectF &area) const
{
    const QFont labels = labelFont(area);
    const double margin = 0.5 * StraightScale::widestLabel(labels, face().scale) + 4;
    const QFontMetricsF metrics(labels);
    QRectF line;
    if (isUpright())
        line = QRectF(area.center().x() - 0.25 * margin, area.top() + metrics.height(), 0,
                      area.height() - 2 * metrics.height());
    else
        line = QRectF(area.left() + margin, area.bottom() - metrics.height() - 1.1 * unitOf(area) - 6,
                      area.width() - 2 * margin, 0);
    return {face().scale, line, isUpright()};
}

void StraightDisplay::paintHeld(QPainter &painter, const StraightScale &scale, double begin, double end) const
{
    if (!reading().held)
        return;
    for (const QPen &pen : {QPen(theme::qColorBackground, 4), QPen(kHeldColor, 2)}) { // seen on every colour
        painter.setPen(pen);
        for (double value : {reading().held->minimum, reading().held->maximum})
            painter.drawLine(scale.point(value, begin), scale.point(value, end));
    }
}

// --- Linear ----------------------------------------------------------------------------------------------------

void LinearDisplay::paintFigure(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale = scaleIn(area);
    const double unit = unitOf(area);
    painter.fillRect(scale.stripe(face().scale.low, face().scale.high, -unit, 0), kTrough);
    scale.paintBands(painter, face().limits, -unit, 0);
    painter.setFont(labelFont(area));
    scale.paintTicks(painter, 1, unit);
}

void LinearDisplay::paintPointer(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale = scaleIn(area);
    const double unit = unitOf(area);
    paintHeld(painter, scale, -unit, 0);
    const QPointF tip = scale.point(reading().value, -0.4 * unit);
    const QPointF base = scale.point(reading().value, -2.4 * unit);
    const QPointF side = scale.isUpright() ? QPointF(0, 0.8 * unit) : QPointF(0.8 * unit, 0);
    painter.setPen(QPen(theme::qColorBackground, 1.5));
    painter.setBrush(pointerColor());
    painter.drawPolygon(QPolygonF({tip, base + side, base - side}));
}

// --- Bar -------------------------------------------------------------------------------------------------------

void BarDisplay::paintFigure(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale = scaleIn(area);
    const double unit = unitOf(area);
    painter.fillRect(scale.stripe(face().scale.low, face().scale.high, -2.3 * unit, -0.5 * unit), kTrough);
    scale.paintBands(painter, face().limits, -0.4 * unit, 0);
    painter.setFont(labelFont(area));
    scale.paintTicks(painter, 1, 0.8 * unit);
}

void BarDisplay::paintPointer(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale = scaleIn(area);
    const double unit = unitOf(area);
    const double zero = std::clamp(0.0, face().scale.low, face().scale.high);
    painter.fillRect(scale.stripe(zero, reading().value, -2.3 * unit, -0.5 * unit), pointerColor());
    painter.setPen(QPen(pointerColor().darker(140), 3)); // seen at zero too
    painter.drawLine(scale.point(reading().value, -2.4 * unit), scale.point(reading().value, -0.4 * unit));
    paintHeld(painter, scale, -2.3 * unit, -0.5 * unit);
}

// --- Digital ---------------------------------------------------------------------------------------------------

SensorDisplay::Places DigitalDisplay::places() const
{
    const QRectF area = QRectF(rect()).adjusted(12, 2, -12, -2);
    const double footer = footerHeight();
    const double strip = std::clamp(0.06 * area.height(), 8.0, 28.0);
    Places parts;
    parts.footer = QRectF(area.left(), area.bottom() - footer, area.width(), footer);
    parts.figure = QRectF(area.left(), parts.footer.top() - strip - 4, area.width(), strip);
    parts.value = QRectF(area.topLeft(), QPointF(area.right(), parts.figure.top() - 4));
    return parts;
}

void DigitalDisplay::paintFigure(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale(face().scale, QRectF(area.left(), area.bottom(), area.width(), 0), false);
    painter.fillRect(area, kTrough);
    scale.paintBands(painter, face().limits, -area.height(), 0);
}

void DigitalDisplay::paintPointer(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale(face().scale, QRectF(area.left(), area.bottom(), area.width(), 0), false);
    const double half = std::max(2.0, 0.25 * area.height());
    const QPointF at = scale.point(reading().value, -0.5 * area.height());
    painter.setPen(QPen(theme::qColorBackground, 1));
    painter.setBrush(pointerColor().darker(130));
    painter.drawRect(QRectF(at.x() - half, area.top() - 2, 2 * half, area.height() + 4));
}
