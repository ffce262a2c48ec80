#include "kit/gauge/qcneedleitem.h"

#include <QPainter>
#include <QPolygonF>
#include <QTransform>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// In percent, of a needle that points up.
constexpr double kNeedleRadius = 82.0;
constexpr double kMarkerRadius = 87.5;
constexpr double kTail = 15.0;
constexpr double kHalfTail = 1.9;
constexpr double kHalfBase = 2.5;
constexpr double kHalfTip = 0.55;
constexpr double kMarkerLength = 9.0;
constexpr double kHalfMarker = 4.8;
constexpr double kShadow = 1.2;
constexpr double kSeenWay = 0.125; // device pixels: the smallest visible movement
constexpr int kShadowOpacity = 34; // of 255

} // namespace

QcNeedleItem::QcNeedleItem(Source source, Shape shape)
    : QcNeedleItem(source, shape, shape == Shape::Needle ? kNeedleRadius : kMarkerRadius)
{}

QcNeedleItem::QcNeedleItem(Source source, Shape shape, double radius)
    : QcItem(radius)
    , m_source(source)
    , m_shape(shape)
    , m_ownValue(std::numeric_limits<double>::quiet_NaN())
{}

void QcNeedleItem::setOwnValue(double value)
{
    if (std::isfinite(value) || std::isfinite(m_ownValue))
        assign(m_ownValue, value);
}

void QcNeedleItem::setColor(const QColor &color)
{
    assign(m_color, color);
}

void QcNeedleItem::setHubRadius(double percent)
{
    if (std::isfinite(percent))
        assign(m_hub, std::clamp(percent, 0.0, 100.0));
}

QcNeedleItem::Target QcNeedleItem::target(const QcReading &reading) const
{
    switch (m_source) {
    case Source::Value:
        return {reading.hasValue, reading.shown};
    case Source::HeldMinimum:
        return {reading.hasHeld, reading.heldMinimum};
    case Source::HeldMaximum:
        return {reading.hasHeld, reading.heldMaximum};
    case Source::Own:
        break;
    }
    return {std::isfinite(m_ownValue), m_ownValue};
}

double QcNeedleItem::angle(const QcCanvas &canvas, const QcReading &reading) const
{
    const qcgauge::Scale &scale = canvas.scale;
    const Target aim = target(reading);
    const double beyond = qcgauge::overrun(scale);
    if (aim.valid)
        return qcgauge::angleAt(scale, aim.value, m_shape == Shape::Needle ? beyond : 0.0);
    return scale.start - std::copysign(beyond, scale.sweep);
}

QPolygonF QcNeedleItem::outline(const QcCanvas &canvas, const QcReading &reading) const
{
    const double tip = -radius();
    const QPolygonF up =
        m_shape == Shape::Needle
            ? QPolygonF({{-kHalfTip, tip},
                         {kHalfTip, tip},
                         {kHalfBase, 0.0},
                         {kHalfTail, kTail},
                         {-kHalfTail, kTail},
                         {-kHalfBase, 0.0}})
            : QPolygonF({{0.0, tip}, {kHalfMarker, tip - kMarkerLength}, {-kHalfMarker, tip - kMarkerLength}});
    QTransform place;
    place.translate(canvas.centre.x(), canvas.centre.y());
    place.rotate(angle(canvas, reading));
    place.scale(canvas.length(1.0), canvas.length(1.0));
    return place.map(up);
}

QColor QcNeedleItem::shownColor(const QcCanvas &canvas, const QcReading &reading) const
{
    if (!target(reading).valid)
        return canvas.colors.ring;
    if (m_color.isValid())
        return canvas.colors.shaded(m_color);
    return m_shape == Shape::Needle ? canvas.colors.needle : canvas.colors.ink;
}

bool QcNeedleItem::looksDifferent(const QcCanvas &canvas, const QcReading &before, const QcReading &after) const
{
    // Compares whole steps of the tip instead of the distance since the last reading: many small distances would add up
    // without being painted.
    const double step = kSeenWay / canvas.ratio / std::max(1.0, canvas.length(radius()));
    const auto steps = [&](const QcReading &reading) {
        return std::round(qDegreesToRadians(angle(canvas, reading)) / step);
    };
    return target(before).valid != target(after).valid || steps(before) != steps(after);
}

QRectF QcNeedleItem::area(const QcCanvas &canvas, const QcReading &reading) const
{
    QRectF covered = outline(canvas, reading).boundingRect();
    if (m_shape == Shape::Needle)
        covered |= canvas.square(m_hub);
    const double shadow = canvas.length(kShadow) + 1.0;
    return covered.adjusted(-shadow, -shadow, shadow, shadow);
}

void QcNeedleItem::paintNeedle(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const
{
    const QColor color = shownColor(canvas, reading);
    const QPolygonF needle = outline(canvas, reading);
    painter.setBrush(QColor(0, 0, 0, kShadowOpacity));
    painter.drawPolygon(needle.translated(canvas.length(kShadow) / 2.0, canvas.length(kShadow)));
    painter.setBrush(color);
    painter.drawPolygon(needle);
    painter.drawEllipse(canvas.square(m_hub));
    painter.setBrush(canvas.colors.face);
    painter.drawEllipse(canvas.square(m_hub * 0.42));
}

void QcNeedleItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const
{
    painter.setPen(Qt::NoPen);
    if (m_shape == Shape::Needle) {
        paintNeedle(painter, canvas, reading);
    } else if (target(reading).valid) {
        painter.setPen(QPen(canvas.colors.face, canvas.stroke(0.8)));
        painter.setBrush(shownColor(canvas, reading));
        painter.drawPolygon(outline(canvas, reading));
    }
}
