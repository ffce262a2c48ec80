#include "kit/gauge/qcdegreesitem.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMostMarks = 12;      // with numerals
constexpr double kMajorRoom = 12.0; // pixels from one to the next
constexpr double kMinorRoom = 4.0;

} // namespace

QcDegreesItem::QcDegreesItem(double radius)
    : QcItem(radius)
{}

void QcDegreesItem::setLength(double percent)
{
    if (std::isfinite(percent))
        assign(m_length, std::clamp(percent, 0.0, 100.0));
}

void QcDegreesItem::setMinorMarks(bool wanted)
{
    assign(m_minorMarks, wanted);
}

double QcDegreesItem::neededStep(const QcCanvas &canvas) const
{
    const double arc = qDegreesToRadians(std::abs(canvas.scale.sweep)) * canvas.length(radius());
    const int room = static_cast<int>(std::min<double>(kMostMarks, arc / kMajorRoom + 1.0));
    return qcgauge::niceStep(canvas.scale.to - canvas.scale.from, room);
}

double QcDegreesItem::distance(const QcCanvas &canvas, double step) const
{
    const qcgauge::Scale &scale = canvas.scale;
    const double part = std::abs(qcgauge::fraction(scale.from + step, scale.from, scale.to));
    return part * qDegreesToRadians(std::abs(scale.sweep)) * canvas.length(radius());
}

void QcDegreesItem::paintMarks(QPainter &painter, const QcCanvas &canvas, double step, double percent) const
{
    for (const double value : qcgauge::multiples(canvas.scale.from, canvas.scale.to, step)) {
        const double angle = qcgauge::angleAt(canvas.scale, value);
        painter.drawLine(canvas.point(angle, radius()), canvas.point(angle, radius() - percent));
    }
}

void QcDegreesItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &) const
{
    const double minor = canvas.step / qcgauge::partsOfStep(canvas.step);
    if (m_minorMarks && distance(canvas, minor) >= kMinorRoom) {
        painter.setPen(QPen(canvas.colors.soft, canvas.stroke(0.8), Qt::SolidLine, Qt::FlatCap));
        paintMarks(painter, canvas, minor, m_length * 0.5);
    }
    painter.setPen(QPen(canvas.colors.ink, canvas.stroke(1.5), Qt::SolidLine, Qt::FlatCap));
    paintMarks(painter, canvas, canvas.step, m_length);
}
