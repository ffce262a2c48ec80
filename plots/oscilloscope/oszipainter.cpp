#include "plots/oscilloscope/oszipainter.h"

#include "plots/oscilloscope/labelcache.h"
#include "plots/oscilloscope/osziscene.h"
#include "plots/oscilloscope/plotgrid.h"

#include <QLine>
#include <QLocale>
#include <QPainter>
#include <QStaticText>
#include <QVarLengthArray>
#include <QtMath>

#include <algorithm>

namespace oszipainter {

namespace {

constexpr int kLeft = PlotGeometry::kLeftMargin;
constexpr int kValueLabelRight = 55;
constexpr int kTimeLabelShift = 3;
constexpr int kWidestTimeLabel = 200;
constexpr int kThickPen = 3;
constexpr int kDashPeriod = kThickPen * (4 + 2); // a dash of 4 and a gap of 2 pen widths
constexpr int kLastPhaseWidth = 100;
constexpr int kMostPhaseWidth = 100000; // pixels; wider phases never cut a name off
constexpr int kEndValueGap = 4;         // pixels between the end of the curve and its value
constexpr int kEndValueRaise = 6;       // pixels between a line through the end and its value
constexpr int kValueLabelLeft = 2;
constexpr int kValueLabelRoom = kLeft - 3 - kValueLabelLeft; // pixels, up to the time axis

QPen dashedPen(const QColor &color)
{
    return QPen(color, kThickPen, Qt::DashLine);
}

QSize roundedUp(const QSizeF &size)
{
    return {qCeil(size.width()), qCeil(size.height())};
}

/// A label that is too long extends to the right, and is scaled down before it would reach the axis: with a sign or a
/// digit cut off it would read as another number.
void paintValueLabel(QPainter &painter, const QStaticText &label, int y)
{
    const QSize size = roundedUp(label.size());
    if (size.width() <= kValueLabelRoom) {
        const int left = std::max(kValueLabelLeft, kValueLabelRight - size.width());
        painter.drawStaticText(left, y - size.height() / 2, label);
        return;
    }
    const double scale = double(kValueLabelRoom) / size.width();
    painter.save();
    painter.translate(kValueLabelLeft, y - size.height() * scale / 2);
    painter.scale(scale, scale);
    painter.drawStaticText(0, 0, label);
    painter.restore();
}

/// Pixels from the left edge of the plot area to a marker; not positive for markers that are not drawn.
qint64 markerDistance(const OsziScene &scene, const OsziMarker &marker)
{
    return scene.geometry.distanceOfTime(marker.position);
}

/// Centres a name between two distances from the left edge of the plot area, cut off where it does not fit.
void paintPhaseName(QPainter &painter, const QStaticText &name, qint64 left, qint64 right, const QRect &region)
{
    const QSize size = roundedUp(name.size());
    const qint64 x = kLeft + left + (right - left - size.width()) / 2;
    if (right <= left || right <= 0 || x > region.right() || x + size.width() < std::max(region.left(), kLeft))
        return;
    painter.save();
    painter.setClipRect(QRect(QPoint(kLeft + int(std::max<qint64>(left, 0)), 0),
                              QPoint(kLeft - 1 + int(std::min<qint64>(right, region.right())), size.height())),
                        Qt::IntersectClip);
    painter.setPen(Qt::black);
    painter.drawStaticText(int(x), 0, name);
    painter.restore();
}

} // namespace

void paintValueGrid(QPainter &painter, const OsziScene &scene, const QRect &region, LabelCache &labels)
{
    const PlotGeometry &geometry = scene.geometry;
    const GridLines lines = valueGridLines(geometry, scene.valueGrid);
    const int decimals = labelDecimals(geometry.span());
    const QLocale locale;
    for (qint64 i = lines.first; i <= lines.last; i += lines.stride) {
        const double value = double(i) * scene.valueGrid;
        const int y = geometry.yOfValue(value);
        painter.setPen(i == 0 ? Qt::black : Qt::gray);
        painter.drawLine(kLeft, y, geometry.width, y);
        if (region.left() >= kLeft)
            continue;
        painter.setPen(Qt::black);
        paintValueLabel(painter, labels.label(locale.toString(value, 'f', decimals), painter.font()), y);
    }
}

void paintClockGrid(QPainter &painter, const OsziScene &scene, const QRect &region, LabelCache &labels)
{
    const PlotGeometry &geometry = scene.geometry;
    painter.setPen(Qt::black);
    painter.drawLine(kLeft, geometry.margin, kLeft, geometry.bottom());
    // Labels follow no language, unlike those of the value axis: "1.5s" is an agreed format.
    const GridLines lines = clockGridLines(geometry, scene.clockGrid);
    for (qint64 i = lines.first; i <= lines.last; i += lines.stride) {
        const qint64 time = i * scene.clockGrid;
        const int x = geometry.xOfTime(time);
        if (x > region.right() + kTimeLabelShift || x < region.left() - kWidestTimeLabel)
            continue;
        painter.setPen(Qt::gray);
        painter.drawLine(x, geometry.margin, x, geometry.bottom());
        painter.setPen(Qt::black);
        painter.drawStaticText(x - kTimeLabelShift, geometry.bottom(), labels.label(timeLabel(time), painter.font()));
    }
}

void paintCurves(QPainter &painter, const OsziScene &scene)
{
    const OsziCurve *highlighted = scene.highlightedCurve();
    for (const OsziCurve &curve : scene.curves) {
        const SampleSpan span = drawnSpan(scene, curve);
        if (span.isEmpty() || &curve == highlighted)
            continue;
        painter.setPen(QPen(curve.color, 1));
        QPoint from = scene.pointOf(curve, span.first);
        for (qint64 k = span.first + 1; k <= span.last; ++k) {
            const QPoint to = scene.pointOf(curve, k);
            painter.drawLine(from, to);
            from = to;
        }
    }
}

void paintHighlighted(QPainter &painter, const OsziScene &scene, const QRect &region)
{
    const OsziCurve *curve = scene.highlightedCurve();
    SampleSpan span = curve ? drawnSpan(scene, *curve) : SampleSpan();
    span.first = std::max(span.first, scene.geometry.sampleAt(region.left() - kThickPen) - 1);
    span.last = std::min(span.last, scene.geometry.sampleAt(region.right() + kThickPen) + 1);
    if (span.isEmpty())
        return;
    QVarLengthArray<QLine, 2048> lines;
    QPoint from = scene.pointOf(*curve, span.first);
    for (qint64 k = span.first + 1; k <= span.last; ++k) {
        const QPoint to = scene.pointOf(*curve, k);
        lines.append(QLine(from, to));
        from = to;
    }
    painter.setPen(QPen(scene.highlightColor, kThickPen));
    painter.drawLines(lines.constData(), lines.size());
}

QString endValueText(const OsziScene &scene)
{
    const OsziCurve *curve = scene.highlightedCurve();
    if (!curve || drawnSpan(scene, *curve).isEmpty())
        return {};
    const qint64 last = curve->end() - 1;
    if (last > scene.geometry.lastVisibleIndex())
        return {};
    return QString::number(scene.drawnValue(*curve, last), 'f', labelDecimals(scene.geometry.span()) + 1);
}

QRect endValueRect(const OsziScene &scene, const QFont &font, LabelCache &labels)
{
    const QString text = endValueText(scene);
    if (text.isEmpty())
        return {};
    const OsziCurve &curve = *scene.highlightedCurve();
    const QPoint end = scene.pointOf(curve, curve.end() - 1);
    QRect rect(QPoint(end.x() + kEndValueGap, 0), roundedUp(labels.label(text, font).size()));
    int top = end.y() - rect.height() / 2;
    if (rect.right() >= scene.geometry.widgetWidth) { // left of the end, and off the curve, which would cross it out
        rect.moveRight(std::min(end.x() - kEndValueGap, scene.geometry.widgetWidth - 1));
        top = end.y() - kEndValueRaise - rect.height();
        top = top < 0 ? end.y() + kEndValueRaise : top;
    }
    rect.moveLeft(std::max(rect.left(), 0));
    rect.moveTop(std::clamp(top, 0, std::max(scene.geometry.height - rect.height(), 0)));
    return rect;
}

QRect paintEndValue(QPainter &painter, const OsziScene &scene, LabelCache &labels)
{
    const QRect rect = endValueRect(scene, painter.font(), labels);
    if (rect.isEmpty())
        return rect;
    painter.setPen(scene.highlightColor);
    painter.drawStaticText(rect.topLeft(), labels.label(endValueText(scene), painter.font()));
    return rect;
}

void paintHorizontalLines(QPainter &painter, const OsziScene &scene, const QRect &region)
{
    // Only the visible dashes, in line with those of the whole line.
    const int left = kLeft + std::max(region.left() - kLeft - kDashPeriod, 0) / kDashPeriod * kDashPeriod;
    const int right = std::min(scene.geometry.width, region.right() + kDashPeriod);
    if (left >= right)
        return;
    for (const OsziLine &line : scene.lines) {
        const int y = scene.geometry.yOfValue(line.value);
        if (y < region.top() - kThickPen || y > region.bottom() + kThickPen)
            continue; // also keeps the dasher away from coordinates it cannot handle
        painter.setPen(dashedPen(line.color));
        painter.drawLine(left, y, right, y);
    }
}

void paintVerticalMarkers(QPainter &painter, const OsziScene &scene, const QRect &region)
{
    for (const OsziMarker &marker : scene.markers) {
        const qint64 distance = markerDistance(scene, marker);
        if (distance <= 0 || distance > scene.geometry.widgetWidth)
            continue;
        const int x = kLeft + int(distance);
        if (x < region.left() - kThickPen || x > region.right() + kThickPen)
            continue;
        painter.setPen(dashedPen(marker.color));
        painter.drawLine(x, 0, x, scene.geometry.bottom());
    }
}

void paintPhaseNames(QPainter &painter, const OsziScene &scene, const QRect &region, LabelCache &labels)
{
    for (int i = 0; i < scene.markers.size(); ++i) {
        const qint64 right = markerDistance(scene, scene.markers[i]);
        if (right <= 0)
            continue;
        const qint64 left = i > 0 ? markerDistance(scene, scene.markers[i - 1]) : 0;
        const bool isLast = i + 1 == scene.markers.size();
        const qint64 end = isLast ? left + kLastPhaseWidth : right;
        const QString name = painter.fontMetrics().elidedText(scene.markers[i].phase, Qt::ElideRight,
                                                              int(std::min<qint64>(end - left, kMostPhaseWidth)));
        paintPhaseName(painter, labels.label(name, painter.font()), left, end, region);
    }
}

} // namespace oszipainter
