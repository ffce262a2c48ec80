#include "kit/gauge/qcarcitem.h"

#include <algorithm>
#include <cmath>

QcArcItem::QcArcItem(double radius)
    : QcItem(radius)
{}

void QcArcItem::setColor(const QColor &color)
{
    assign(m_color, color);
}

void QcArcItem::setWidth(double percent)
{
    if (std::isfinite(percent))
        assign(m_width, std::clamp(percent, 0.0, 100.0));
}

void QcArcItem::setSpan(double from, double to)
{
    if (!std::isfinite(from) || !std::isfinite(to))
        return;
    assign(m_hasSpan, true);
    assign(m_from, from);
    assign(m_to, to);
}

void QcArcItem::clearSpan()
{
    assign(m_hasSpan, false);
}

void QcArcItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &) const
{
    const qcgauge::Scale &scale = canvas.scale;
    const double width = canvas.stroke(m_width) / canvas.length(1.0);
    const QColor color = m_color.isValid() ? canvas.colors.shaded(m_color) : canvas.colors.soft;
    const double from = qcgauge::angleAt(scale, m_hasSpan ? m_from : scale.from);
    const double to = m_hasSpan ? qcgauge::angleAt(scale, m_to) : scale.start + scale.sweep;
    qcgauge::drawRing(painter, canvas, {radius(), width, from, to}, color);
}
