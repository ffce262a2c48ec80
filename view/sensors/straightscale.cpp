#include "view/sensors/straightscale.h"

#include "app/theme.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kTickWidth = 1.5;

} // namespace

QColor insideColor()
{
    return {0x66, 0xBB, 0x6A};
}

QColor outsideColor()
{
    return {0xEF, 0x53, 0x50};
}

QColor troughColor()
{
    return {0xE4, 0xE7, 0xEB};
}

StraightScale::StraightScale(const SensorScale &scale, const QRectF &line, bool isUpright)
    : m_scale(scale)
    , m_line(line)
    , m_isUpright(isUpright)
{}

QPointF StraightScale::point(double value, double across) const
{
    const double fraction = m_scale.fraction(value);
    if (m_isUpright)
        return {m_line.left() + across, m_line.bottom() - fraction * m_line.height()};
    return {m_line.left() + fraction * m_line.width(), m_line.top() + across};
}

QRectF StraightScale::stripe(double from, double to, double begin, double end) const
{
    return QRectF(point(from, begin), point(to, end)).normalized();
}

void StraightScale::paintBands(QPainter &painter, const SensorLimits &limits, double begin, double end) const
{
    if (!limits.isAny())
        return;
    const double lower = limits.lower.value_or(m_scale.low);
    const double upper = limits.upper.value_or(m_scale.high);
    painter.fillRect(stripe(m_scale.low, lower, begin, end), outsideColor());
    painter.fillRect(stripe(lower, upper, begin, end), insideColor());
    painter.fillRect(stripe(upper, m_scale.high, begin, end), outsideColor());
}

double StraightScale::widestLabel(const QFont &font, const SensorScale &scale)
{
    const QFontMetricsF metrics(font);
    return std::max(metrics.horizontalAdvance(sensorValueText(scale.low, scale.labelDecimals)),
                    metrics.horizontalAdvance(sensorValueText(scale.high, scale.labelDecimals)));
}

int StraightScale::labelStride(const QPainter &painter) const
{
    const double length = m_isUpright ? m_line.height() : m_line.width();
    const double place = m_isUpright ? 1.4 * painter.fontMetrics().height()
                                     : widestLabel(painter.font(), m_scale) + painter.fontMetrics().averageCharWidth();
    const double needed = place * std::max(1, m_scale.numSteps()) / std::max(1.0, length);
    int stride = 1;
    for (int i = 0; stride < needed; ++i)
        stride = i % 3 == 1 ? stride / 2 * 5 : 2 * stride;
    return stride;
}

void StraightScale::paintTicks(QPainter &painter, double begin, double length) const
{
    const auto first = std::llround(m_scale.low / m_scale.step); // counted from zero, so that zero gets a label
    const int stride = labelStride(painter);
    painter.setPen(QPen(theme::qColorDark, kTickWidth));
    for (int i = 0; i <= m_scale.numSteps(); ++i) {
        const double value = static_cast<double>(first + i) * m_scale.step;
        const bool isLong = (first + i) % stride == 0;
        painter.drawLine(point(value, begin), point(value, begin + (isLong ? length : 0.55 * length)));
        if (isLong)
            paintLabel(painter, value, begin + length);
    }
}

void StraightScale::paintLabel(QPainter &painter, double value, double across) const
{
    const QString text = sensorValueText(value, m_scale.labelDecimals);
    const QFontMetricsF metrics = painter.fontMetrics();
    const double gap = 0.25 * metrics.height();
    const QPointF at = point(value, across + gap);
    if (m_isUpright)
        painter.drawText(QPointF(at.x(), at.y() + 0.5 * metrics.capHeight()), text);
    else
        painter.drawText(QPointF(at.x() - 0.5 * metrics.horizontalAdvance(text), at.y() + metrics.capHeight()), text);
}
