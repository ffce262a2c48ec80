#include "kit/gauge/qcglassitem.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

QcGlassItem::QcGlassItem(double radius)
    : QcItem(radius)
{}

void QcGlassItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &) const
{
    const QRectF edge = canvas.square(radius());
    painter.setPen(Qt::NoPen);
    QRadialGradient rim(edge.center(), edge.width() / 2.0);
    rim.setColorAt(0.88, Qt::transparent);
    rim.setColorAt(1.0, QColor(0, 0, 0, 15));
    painter.setBrush(rim);
    painter.drawEllipse(edge);
    QLinearGradient sheen(edge.topLeft(), edge.center());
    sheen.setColorAt(0.0, QColor(255, 255, 255, 36));
    sheen.setColorAt(1.0, QColor(255, 255, 255, 0));
    painter.setBrush(sheen);
    painter.drawEllipse(edge);
}
