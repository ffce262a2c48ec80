#include "plots/evaluation/overlay/overlayplot.h"

#include "app/theme.h"
#include "plots/oscilloscope/plotgeometry.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPolygon>

#include <algorithm>
#include <utility>

namespace {

constexpr int kReferenceWidth = 9; // pixels
constexpr int kReferenceAlpha = 110;
constexpr int kMeanWidth = 2;
constexpr int kBandAlpha = 70;

// Lines that leave the plot must stay within the coordinates that the painter can handle.
QPoint pointAt(const PlotGeometry &geometry, qint64 index, double value)
{
    constexpr int kFar = 10000;
    return {geometry.xOfSample(index), std::clamp(geometry.yOfValue(value), -kFar, kFar)};
}

void paintBand(QPainter &painter, const QPolygon &upper, const QPolygon &lower)
{
    QPolygon band = upper; // and back along the lower edge
    std::for_each(lower.crbegin(), lower.crend(), [&](const QPoint &point) { band.append(point); });
    QColor fill = theme::qColorPrimary;
    fill.setAlpha(kBandAlpha);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(band);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(theme::qColorPrimary);
    painter.drawPolyline(upper);
    painter.drawPolyline(lower);
}

} // namespace

void OverlayPlot::setReference(const Reference &reference)
{
    const bool hadOne = std::exchange(m_reference, reference).samples;
    if (hadOne || reference.samples)
        update();
}

void OverlayPlot::setMean(const MeanBand *mean, bool showsMean, double sigmas)
{
    const bool hadOne = std::exchange(m_mean, mean);
    m_showsMean = showsMean;
    m_sigmas = sigmas;
    if (hadOne || mean)
        update();
}

void OverlayPlot::paintEvent(QPaintEvent *event)
{
    OsziWidget::paintEvent(event);
    const PlotGeometry geometry = plotGeometry();
    QPainter painter(this);
    const QRect area(QPoint(kLeftMargin + 1, geometry.margin), QPoint(geometry.width - 1, geometry.bottom()));
    painter.setClipRect(area & event->rect());
    paintReference(painter, geometry);
    paintMean(painter, geometry);
}

void OverlayPlot::paintReference(QPainter &painter, const PlotGeometry &geometry) const
{
    if (!m_reference.samples)
        return;
    const SampleSpan span = visibleSpan(geometry, m_reference.samples->size(), m_reference.shift);
    if (span.isEmpty())
        return;
    QPolygon line;
    for (qint64 index = span.first; index <= span.last; ++index) {
        const double value = m_reference.samples->at(int(index - m_reference.shift));
        line.append(pointAt(geometry, index, value + m_reference.lift + offset()));
    }
    QColor color = m_reference.color;
    color.setAlpha(kReferenceAlpha);
    painter.setPen(QPen(color, kReferenceWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(line);
}

// In pieces: between shots that do not overlap there may be indices where none has a value.
void OverlayPlot::paintMean(QPainter &painter, const PlotGeometry &geometry) const
{
    if (!m_mean || (!m_showsMean && !(m_sigmas > 0.0)))
        return;
    const std::vector<MeanBand::Point> &points = m_mean->points();
    const qint64 end = std::min<qint64>(qint64(points.size()), geometry.lastVisibleIndex() + 1);
    qint64 index = std::max(geometry.startIndex, 0);
    while (index < end) {
        QPolygon line;
        QPolygon upper;
        QPolygon lower;
        for (; index < end && points[size_t(index)].count > 0; ++index) {
            const MeanBand::Point &point = points[size_t(index)];
            const double mean = point.mean + offset();
            const double reach = m_sigmas * point.sigma();
            line.append(pointAt(geometry, index, mean));
            upper.append(pointAt(geometry, index, mean + reach));
            lower.append(pointAt(geometry, index, mean - reach));
        }
        if (m_sigmas > 0.0)
            paintBand(painter, upper, lower);
        if (m_showsMean) {
            // Dashed, so that the curves below it stay visible.
            painter.setPen(QPen(Qt::black, kMeanWidth, Qt::DashLine));
            painter.drawPolyline(line);
        }
        for (; index < end && points[size_t(index)].count == 0; ++index) {
        }
    }
}
