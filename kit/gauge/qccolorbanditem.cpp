#include "kit/gauge/qccolorbanditem.h"

#include <algorithm>
#include <cmath>

QcColorBandItem::QcColorBandItem(double radius)
    : QcItem(radius)
{}

void QcColorBandItem::setWidth(double percent)
{
    if (std::isfinite(percent))
        assign(m_width, std::clamp(percent, 0.0, 100.0));
}

void QcColorBandItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &) const
{
    for (const QcBand &band : canvas.bands) {
        const double from = qcgauge::angleAt(canvas.scale, band.from);
        const double to = qcgauge::angleAt(canvas.scale, band.to);
        if (from != to)
            qcgauge::drawRing(painter, canvas, {radius(), m_width, from, to}, canvas.colors.shaded(band.color));
    }
}
