#include "plots/charts/boxwhiskerswidget.h"

#include "app/theme.h"
#include "plots/common/labelfont.h"
#include "plots/common/logging.h"

#include <QPainter>
#include <QStaticText>

#include <algorithm>
#include <cmath>

namespace {

void drawBackground(QPainter &painter, const BoxPlotGeometry &geometry)
{
    painter.fillRect(geometry.plotArea(), theme::qColorLight);
}

void drawAcross(QPainter &painter, const BoxPlotGeometry &geometry, int along, int from, int to)
{
    painter.drawLine(geometry.pixel(along, from), geometry.pixel(along, to));
}

void drawWhiskers(QPainter &painter, const BoxPlotGeometry &geometry, const statistics::FiveNumbers &numbers)
{
    painter.setPen(QPen(Qt::black, 2));
    for (const double end : {numbers.minimum, numbers.maximum}) {
        if (geometry.isInside(end))
            drawAcross(painter, geometry, geometry.along(end), 4, geometry.thickness() - 5);
    }
    const int middle = geometry.thickness() / 2;
    painter.drawLine(geometry.pixel(geometry.clampedAlong(numbers.minimum), middle),
                     geometry.pixel(geometry.clampedAlong(numbers.maximum), middle));
}

void drawBox(QPainter &painter, const BoxPlotGeometry &geometry, const statistics::FiveNumbers &numbers,
             const QColor &fill)
{
    const QPoint first = geometry.pixel(geometry.along(numbers.q1), 0);
    const QPoint last = geometry.pixel(geometry.along(numbers.q3), geometry.thickness() - 3);
    const QPoint topLeft(std::min(first.x(), last.x()), std::min(first.y(), last.y()));
    const QSize size(std::abs(last.x() - first.x()), std::abs(last.y() - first.y()));
    painter.fillRect(QRect(topLeft, size), fill);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(QRect(topLeft, size));
}

void drawMedian(QPainter &painter, const BoxPlotGeometry &geometry, double median)
{
    painter.setPen(QPen(Qt::black, 2));
    drawAcross(painter, geometry, geometry.along(median), 1, geometry.thickness() - 2);
}

void drawLabel(QPainter &painter, const BoxPlotGeometry &geometry, int along, const QStaticText &text)
{
    if (along == LabelPlaces::kHidden)
        return;
    painter.save();
    painter.translate(geometry.pixel(along, geometry.thickness()));
    if (geometry.vertical)
        painter.rotate(-90.0);
    painter.drawStaticText(0, 0, text);
    painter.restore();
}

QStaticText labelText(double value, const QFont &font)
{
    QStaticText text(QString::number(value, 'g', 6));
    text.setTextFormat(Qt::PlainText);
    text.prepare(QTransform(), font);
    return text;
}

int lengthOf(const QStaticText &text)
{
    return static_cast<int>(std::ceil(text.size().width()));
}

void drawLabels(QPainter &painter, const BoxPlotGeometry &geometry, const statistics::FiveNumbers &numbers)
{
    const QStaticText minimum = labelText(numbers.minimum, painter.font());
    const QStaticText median = labelText(numbers.median, painter.font());
    const QStaticText maximum = labelText(numbers.maximum, painter.font());
    const LabelPlaces places = placeLabels(geometry, numbers, {lengthOf(minimum), lengthOf(median), lengthOf(maximum)});
    painter.setPen(theme::qColorText);
    drawLabel(painter, geometry, places.median, median);
    drawLabel(painter, geometry, places.minimum, minimum);
    drawLabel(painter, geometry, places.maximum, maximum);
}

// The plot area and one more pixel at either end of the axis, so that a line at an end keeps its full width.
QRect clipOf(const BoxPlotGeometry &geometry)
{
    return geometry.vertical ? geometry.plotArea().adjusted(0, -1, 0, 1) : geometry.plotArea().adjusted(-1, 0, 1, 0);
}

} // namespace

BoxWhiskersWidget::BoxWhiskersWidget(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

// By value, as its log line says.
void BoxWhiskersWidget::set(QList<double> values) // NOLINT(performance-unnecessary-value-param)
{
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " n=" << values.size();
    m_sorted = statistics::sortedFiniteValues(values);
    m_numbers = statistics::fiveNumbers(m_sorted);
    update();
}

void BoxWhiskersWidget::setAxisRange(double minimum, double maximum)
{
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " minimum=" << minimum << " maximum=" << maximum;
    if (!std::isfinite(minimum) || !std::isfinite(maximum))
        return;
    m_axisMinimum = std::min(minimum, maximum);
    m_axisMaximum = std::max(minimum, maximum);
    update();
}

void BoxWhiskersWidget::setMargins(int left, int top, int right, int bottom)
{
    m_margins = QMargins(std::max(0, left), std::max(0, top), std::max(0, right), std::max(0, bottom));
    update();
}

void BoxWhiskersWidget::setFillColor(const QColor &color)
{
    m_fillColor = color;
    update();
}

void BoxWhiskersWidget::setVertical(bool vertical)
{
    if (m_vertical == vertical)
        return;
    m_vertical = vertical;
    // The plot stretches along its value axis only.
    setSizePolicy(sizePolicy().transposed());
    updateGeometry();
    update();
}

QSize BoxWhiskersWidget::sizeHint() const
{
    return m_vertical ? QSize(60, 240) : QSize(240, 60);
}

QSize BoxWhiskersWidget::minimumSizeHint() const
{
    return m_vertical ? QSize(60, 120) : QSize(120, 60);
}

BoxPlotGeometry BoxWhiskersWidget::geometryOfPlot() const
{
    return {size(), m_margins, m_vertical, m_axisMinimum, m_axisMaximum};
}

void BoxWhiskersWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    const BoxPlotGeometry geometry = geometryOfPlot();
    QPainter painter(this);
    painter.setFont(labelFont(font()));
    drawBackground(painter, geometry);
    painter.setClipRect(clipOf(geometry));
    drawWhiskers(painter, geometry, m_numbers);
    drawBox(painter, geometry, m_numbers, m_fillColor);
    drawMedian(painter, geometry, m_numbers.median);
    painter.setClipping(false); // labels lie in the margins
    drawLabels(painter, geometry, m_numbers);
}
