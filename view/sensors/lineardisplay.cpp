#include "view/sensors/lineardisplay.h"

#include "app/theme.h"

#include <QPainter>
#include <QPolygonF>

void LinearDisplay::paintFigure(QPainter &painter, const QRectF &area) const
{
    const StraightScale scale = scaleIn(area);
    const double unit = unitOf(area);
    painter.fillRect(scale.stripe(face().scale.low, face().scale.high, -unit, 0), troughColor());
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
