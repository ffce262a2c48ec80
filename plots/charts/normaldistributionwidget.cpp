#include "plots/charts/normaldistributionwidget.h"

#include "app/theme.h"
#include "plots/common/labelfont.h"
#include "plots/common/logging.h"

#include <QPainter>
#include <QPolygonF>
#include <QStaticText>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFrame = 3; // pixels from the widget's edge to the labels at it

// What lies inside the margins: the base line is its bottom edge.
struct BellArea
{
    int left = 0;
    int right = 0;
    int top = 0;
    int base = 0;
    [[nodiscard]] bool isEmpty() const { return right <= left || base <= top; }
    [[nodiscard]] int centre() const { return left + (right - left) / 2; }
};

BellArea areaOf(const QSize &size, const QMargins &margins)
{
    return {margins.left(), size.width() - margins.right(), margins.top(), size.height() - margins.bottom()};
}

QStaticText figure(double value, const QFont &font)
{
    QStaticText text(QString::number(value, 'g', 6));
    text.setTextFormat(Qt::PlainText);
    text.prepare(QTransform(), font);
    return text;
}

void drawBaseLabels(QPainter &painter, const BellArea &area, statistics::Moments moments)
{
    const QStaticText first = figure(moments.mean - 3.0 * moments.sigma, painter.font());
    const QStaticText middle = figure(moments.mean, painter.font());
    const QStaticText last = figure(moments.mean + 3.0 * moments.sigma, painter.font());
    const int end = painter.viewport().width() - kFrame - static_cast<int>(std::ceil(last.size().width()));
    const int lastAt = std::min(area.right - 29, end); // a long one would be cut off at the widget's edge
    const int middleAt = area.centre() - static_cast<int>(middle.size().width() / 2.0);
    painter.drawStaticText(middleAt, area.base, middle);
    if (area.left + first.size().width() < middleAt)
        painter.drawStaticText(area.left, area.base, first);
    if (middleAt + middle.size().width() < lastAt)
        painter.drawStaticText(lastAt, area.base, last);
}

void drawHeightLabels(QPainter &painter, const BellArea &area, double peak)
{
    const QStaticText zero = figure(0.0, painter.font());
    painter.drawStaticText(kFrame, area.base - 7, zero);
    if (std::isfinite(peak))
        painter.drawStaticText(kFrame, area.top, figure(peak, painter.font()));
}

QPolygonF bell(const BellArea &area, statistics::Moments moments)
{
    const double peak = statistics::density(moments.mean, moments);
    const double step = 6.0 * moments.sigma / (area.right - area.left);
    QPolygonF curve;
    for (int x = area.left; x <= area.right; ++x) {
        const double value = moments.mean - 3.0 * moments.sigma + step * (x - area.left);
        const double part = statistics::density(value, moments) / peak;
        curve << QPointF(x, area.base - (std::isfinite(part) ? part : 0.0) * (area.base - area.top));
    }
    return curve;
}

void drawCurve(QPainter &painter, const BellArea &area, statistics::Moments moments, const QColor &color)
{
    painter.setPen(QPen(color, 3));
    if (std::isfinite(statistics::density(moments.mean, moments)))
        painter.drawPolyline(bell(area, moments));
    else // all values are equal
        painter.drawLine(area.centre(), area.base, area.centre(), area.top);
}

} // namespace

NormalDistributionWidget::NormalDistributionWidget(QWidget *parent)
    : QWidget(parent)
    , m_curveColor(theme::qColorPrimary)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

// By value, as its log line says.
void NormalDistributionWidget::set(QList<double> values) // NOLINT(performance-unnecessary-value-param)
{
    const QVector<double> finite = statistics::finiteValues(values);
    m_moments = statistics::moments(finite);
    m_hasValues = !finite.isEmpty();
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " mean=" << mean() << " sigma=" << sigma();
    update();
}

void NormalDistributionWidget::setMargins(int left, int top, int right, int bottom)
{
    m_margins = QMargins(std::max(0, left), std::max(0, top), std::max(0, right), std::max(0, bottom));
    update();
}

void NormalDistributionWidget::setCurveColor(const QColor &color)
{
    m_curveColor = color;
    update();
}

QSize NormalDistributionWidget::sizeHint() const
{
    return {320, 180};
}

QSize NormalDistributionWidget::minimumSizeHint() const
{
    return {160, 80};
}

void NormalDistributionWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this); // the frame that the style sheet gives it

    const BellArea area = areaOf(size(), m_margins);
    painter.setFont(labelFont(font()));
    painter.setPen(theme::qColorText);
    painter.drawLine(area.left, area.base, area.right, area.base);
    drawBaseLabels(painter, area, m_moments);
    drawHeightLabels(painter, area, statistics::density(m_moments.mean, m_moments));
    if (m_hasValues && !area.isEmpty()) {
        painter.setRenderHint(QPainter::Antialiasing);
        drawCurve(painter, area, m_moments, m_curveColor);
    }
}
