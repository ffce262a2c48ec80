#include "view/sensors/bardisplay.h"

#include <QPainter>

#include <algorithm>

void BarDisplay::paintFigure(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale = scaleIn(area);
    const double unit = unitOf(area);
    painter.fillRect(scale.stripe(face().scale.low, face().scale.high, -2.3 * unit, -0.5 * unit), troughColor());
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
    painter.setPen(QPen(pointerColor().darker(140), 3)); // visible at zero too
    painter.drawLine(scale.point(reading().value, -2.4 * unit), scale.point(reading().value, -0.4 * unit));
    paintHeld(painter, scale, -2.3 * unit, -0.5 * unit);
}
