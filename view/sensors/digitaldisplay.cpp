#include "view/sensors/digitaldisplay.h"

#include "app/theme.h"
#include "view/sensors/straightscale.h"

#include <QPainter>

#include <algorithm>

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
    painter.fillRect(area, troughColor());
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
