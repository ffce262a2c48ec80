#include "kit/gauge/qcbackgrounditem.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

QcBackgroundItem::QcBackgroundItem(double radius)
    : QcItem(radius)
{}

void QcBackgroundItem::setColor(const QColor &color)
{
    assign(m_color, color);
}

void QcBackgroundItem::setRingWidth(double percent)
{
    if (std::isfinite(percent))
        assign(m_ringWidth, std::clamp(percent, 0.0, 100.0));
}

void QcBackgroundItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_color.isValid() ? m_color : canvas.colors.face);
    const double width = m_ringWidth > 0.0 ? canvas.stroke(m_ringWidth) : 0.0;
    const double inset = width / 2.0;
    const QRectF edge = canvas.square(radius()).adjusted(inset, inset, -inset, -inset);
    if (width > 0.0)
        painter.setPen(QPen(canvas.colors.ring, width));
    painter.drawEllipse(edge);
}
