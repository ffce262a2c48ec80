#include "plots/evaluation/common/trendchart.h"

#include "app/theme.h"
#include "plots/charts/statistics.h"
#include "plots/common/labelfont.h"
#include "plots/evaluation/common/evaluationdata.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kLeft = 76; // pixels for the labels of the value axis
constexpr int kRight = 16;
constexpr int kTitleHeight = 24;
constexpr int kBottom = 24;
constexpr double kLargestPoint = 3.5;   // radius, pixels
constexpr double kClosestPoints = 3.0;  // pixels between two points; with less, only a band is drawn
constexpr double kClosestMarks = 70.0;  // pixels between two labels below the plot
constexpr double kClosestLevels = 34.0; // pixels between two labels of the value axis

QColor outsideColor()
{
    return theme::qColorRed;
}

void drawLevels(QPainter &painter, const TrendGeometry &geometry)
{
    const TrendTicks ticks = trendTicks(geometry.range, static_cast<int>(geometry.area.height() / kClosestLevels));
    for (const double value : ticks.values) {
        const double y = std::round(geometry.y(value)) + 0.5; // the middle of a pixel gives a sharp line
        painter.setPen(theme::qColorLight);
        painter.drawLine(QPointF(geometry.area.left(), y), QPointF(geometry.area.right(), y));
        painter.setPen(theme::qColorDark);
        painter.drawText(QRectF(0.0, y - 10.0, kLeft - 8.0, 20.0), Qt::AlignRight | Qt::AlignVCenter,
                         tickText(value, ticks.step));
    }
}

void drawNumbers(QPainter &painter, const TrendGeometry &geometry)
{
    painter.setPen(theme::qColorDark);
    const auto draw = [&](int shot) {
        painter.drawText(QRectF(geometry.x(shot) - 40.0, geometry.area.bottom() + 4.0, 80.0, 18.0),
                         Qt::AlignHCenter | Qt::AlignTop, QString::number(shot));
    };
    if (geometry.count == 1)
        draw(0);
    if (geometry.count < 2)
        return;
    const TrendRange range{0.0, double(geometry.count - 1)};
    const int most = std::max(1, static_cast<int>(geometry.area.width() / kClosestMarks));
    const TrendTicks ticks = trendTicks(range, std::min(most, geometry.count - 1)); // steps of whole shots only
    for (const double shot : ticks.values)
        draw(static_cast<int>(std::lround(shot)));
}

void drawFrame(QPainter &painter, const QRectF &area)
{
    painter.setPen(theme::qColorMedium);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(-0.5, -0.5, 0.5, 0.5));
}

void drawChosen(QPainter &painter, const TrendGeometry &geometry, int shot)
{
    const double x = std::round(geometry.x(shot)) + 0.5;
    QColor band = theme::qColorPrimary;
    band.setAlpha(50);
    painter.fillRect(QRectF(x - 4.0, geometry.area.top(), 8.0, geometry.area.height()), band);
}

void drawMean(QPainter &painter, const TrendGeometry &geometry, double mean)
{
    const double y = std::round(geometry.y(mean)) + 0.5;
    painter.setPen(QPen(theme::qColorMedium, 1.0, Qt::DashDotLine));
    painter.drawLine(QPointF(geometry.area.left(), y), QPointF(geometry.area.right(), y));
}

void drawNothing(QPainter &painter, const QRectF &area)
{
    painter.setPen(theme::qColorDark);
    painter.drawText(area, Qt::AlignCenter, TrendChart::tr("Keine Werte"));
}

// Outside the limits, where no good value can lie.
void drawLimitLabels(QPainter &painter, const TrendGeometry &geometry, const ToleranceLimits &limits)
{
    constexpr double kHeight = 16.0;
    painter.setPen(theme::qColorDarkRed);
    const auto draw = [&](const std::optional<double> &limit, const QString &text, double above) {
        if (!limit)
            return;
        const QRectF place(geometry.area.left(), geometry.y(*limit) - above, geometry.area.width() - 4.0, kHeight);
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, text.arg(figureText(*limit)));
    };
    draw(limits.upper, TrendChart::tr("Obere Grenze %1"), kHeight);
    draw(limits.lower, TrendChart::tr("Untere Grenze %1"), 0.0);
}

void drawPoint(QPainter &painter, QPointF at, double radius, bool isOutside, const QColor &color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(isOutside ? outsideColor() : color);
    const double size = isOutside ? radius + 1.5 : radius;
    painter.drawEllipse(at, size, size);
}

void drawPoints(QPainter &painter, const TrendGeometry &geometry, const TrendValues &values,
                const ToleranceLimits &limits, const QColor &color)
{
    QPolygonF line;
    for (int shot = 0; shot < geometry.count; ++shot) {
        if (const std::optional<double> &value = values[static_cast<std::size_t>(shot)])
            line << QPointF(geometry.x(shot), geometry.y(*value));
    }
    painter.setPen(QPen(color, 1.5));
    painter.drawPolyline(line);
    const double radius = std::clamp(geometry.spacing() / 3.0, 1.0, kLargestPoint);
    int point = 0;
    for (const std::optional<double> &value : values) {
        if (value)
            drawPoint(painter, line.at(point++), radius, limits.isOutside(*value), color);
    }
}

void drawColumns(QPainter &painter, const TrendGeometry &geometry, const TrendValues &values,
                 const ToleranceLimits &limits, const QColor &color)
{
    const std::vector<TrendColumn> columns = trendColumns(values, geometry);
    QPolygonF line;
    for (const TrendColumn &column : columns) {
        const double x = geometry.x(column.first);
        line << QPointF(x, geometry.y(column.minimum)) << QPointF(x, geometry.y(column.maximum));
    }
    painter.setPen(QPen(color, 1.0));
    painter.drawPolyline(line);
    for (const TrendColumn &column : columns) {
        const double x = geometry.x(column.first);
        for (const double end : {column.minimum, column.maximum}) {
            if (limits.isOutside(end))
                drawPoint(painter, QPointF(x, geometry.y(end)), 1.0, true, color);
        }
    }
}

} // namespace

void drawTrendLimits(QPainter &painter, const TrendGeometry &geometry, const ToleranceLimits &limits)
{
    painter.setPen(QPen(outsideColor(), 1.5, Qt::DashLine));
    for (const std::optional<double> &limit : {limits.lower, limits.upper}) {
        if (!limit)
            continue;
        const double y = std::round(geometry.y(*limit)) + 0.5;
        painter.drawLine(QPointF(geometry.area.left(), y), QPointF(geometry.area.right(), y));
    }
}

void drawTrend(QPainter &painter, const TrendGeometry &geometry, const TrendValues &values,
               const ToleranceLimits &limits, const QColor &color)
{
    if (geometry.spacing() < kClosestPoints)
        drawColumns(painter, geometry, values, limits, color);
    else
        drawPoints(painter, geometry, values, limits, color);
}

TrendChart::TrendChart(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TrendChart::set(const TrendValues &values, const ToleranceLimits &limits)
{
    m_values = values;
    m_limits = limits;
    m_range = trendRange(values, limits);
    QVector<double> present;
    for (const std::optional<double> &value : values) {
        if (value)
            present.append(*value);
    }
    m_hasValues = !present.isEmpty();
    m_mean = statistics::mean(present);
    update();
}

void TrendChart::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void TrendChart::setTitle(const QString &title)
{
    m_title = title;
    update();
}

void TrendChart::setChosenShot(int shot)
{
    if (shot == m_chosenShot)
        return;
    m_chosenShot = shot;
    update();
}

TrendGeometry TrendChart::geometryOfPlot() const
{
    const QRectF area = QRectF(rect()).adjusted(kLeft, kTitleHeight, -kRight, -kBottom);
    return {area, static_cast<int>(m_values.size()), m_range};
}

QSize TrendChart::sizeHint() const
{
    return {480, 200};
}

QSize TrendChart::minimumSizeHint() const
{
    return {240, 120};
}

void TrendChart::mousePressEvent(QMouseEvent *event)
{
    const int shot = geometryOfPlot().shotAt(event->x());
    if (event->button() == Qt::LeftButton && shot >= 0)
        emit shotClicked(shot);
}

void TrendChart::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    const TrendGeometry geometry = geometryOfPlot();
    QPainter painter(this);
    painter.fillRect(rect(), theme::qColorBackground);
    painter.setPen(theme::qColorText);
    QFont titleFont = font();
    titleFont.setPixelSize(15);
    painter.setFont(titleFont);
    painter.drawText(QRectF(kLeft, 0.0, geometry.area.width(), kTitleHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(m_title, Qt::ElideRight, int(geometry.area.width())));
    if (geometry.area.width() < 1.0 || geometry.area.height() < 1.0)
        return;
    painter.setFont(labelFont(font()));
    if (m_hasValues || !m_limits.isEmpty())
        drawLevels(painter, geometry);
    drawNumbers(painter, geometry);
    drawFrame(painter, geometry.area);
    // With room for the points of the first and last shot, whose centres are on the frame.
    painter.setClipRect(geometry.area.adjusted(-5.0, -1.0, 5.0, 1.0));
    if (m_chosenShot >= 0 && m_chosenShot < geometry.count)
        drawChosen(painter, geometry, m_chosenShot);
    if (m_hasValues)
        drawMean(painter, geometry, m_mean);
    else
        drawNothing(painter, geometry.area);
    drawTrendLimits(painter, geometry, m_limits);
    drawLimitLabels(painter, geometry, m_limits);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTrend(painter, geometry, m_values, m_limits, m_color);
}
