#include "plots/common/localnumber.h"
#include "plots/common/logging.h"
#include "plots/oscilloscope/oszipainter.h"
#include "plots/oscilloscope/osziwidget_p.h"
#include "plots/oscilloscope/plotgrid.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int kHairLineHalf = 400; // pixels
constexpr int kReadOutRight = 10;  // pixels from the mouse to the read-out
constexpr int kReadOutAbove = 11;  // pixels between the curve and the read-out

/// Above and right of a point of the curve; a peak near the upper edge or the right end keeps its value in sight.
QPoint readOutPlace(QPoint point, QSize label, QSize plot)
{
    const int right = point.x() + kReadOutRight;
    const int left = point.x() - kReadOutRight - label.width();
    const int top = point.y() - label.height() - kReadOutAbove;
    return {right + label.width() > plot.width() && left >= 0 ? left : right,
            std::clamp(top, 0, std::max(plot.height() - label.height(), 0))};
}

} // namespace

void OsziWidget::Private::measure(const OsziWidget *widget)
{
    scene.geometry.width = widget->contentsRect().width();
    scene.geometry.widgetWidth = widget->width();
    scene.geometry.height = widget->height();
}

void OsziWidget::Private::followValueGrid(OsziWidget *widget)
{
    if (!scene.valueGridAuto)
        return;
    const double grid = autoValueGrid(scene.geometry.span(), scene.geometry.plotHeight());
    if (!(grid < scene.valueGrid) && !(grid > scene.valueGrid))
        return;
    scene.valueGrid = grid;
    qCDebug(lcPlots) << "emit valueGridChanged()";
    const QScopedValueRollback<bool> announcing(announcingGrid, true);
    emit widget->valueGridChanged(grid);
}

void OsziWidget::Private::followClockGrid(OsziWidget *widget)
{
    if (!scene.clockGridAuto)
        return;
    const int grid = autoClockGrid(scene.geometry.zoom, scene.geometry.clock, scene.clockGrid);
    if (grid == scene.clockGrid)
        return;
    scene.clockGrid = grid;
    qCDebug(lcPlots) << "emit clockGridChanged()";
    const QScopedValueRollback<bool> announcing(announcingGrid, true);
    emit widget->clockGridChanged(grid);
}

void OsziWidget::paintEvent(QPaintEvent *event)
{
    d->measure(this);
    d->followValueGrid(this);
    d->followClockGrid(this);

    const QRect region = event->rect();
    QPainter painter(this);
    painter.setClipRect(region); // clips nothing more, but lets the painter draw thin lines in one piece
    drawFrame(&painter);
    oszipainter::paintValueGrid(painter, d->scene, region, d->labels);
    oszipainter::paintClockGrid(painter, d->scene, region, d->labels);
    d->paintCurves(painter, region);
    oszipainter::paintHighlighted(painter, d->scene, region);
    const QRect valueRect = oszipainter::paintEndValue(painter, d->scene, d->labels);
    d->endValueRect = region == rect() ? valueRect : valueRect | d->endValueRect; // the old one may still be seen
    oszipainter::paintHorizontalLines(painter, d->scene, region);
    oszipainter::paintVerticalMarkers(painter, d->scene, region);
    oszipainter::paintPhaseNames(painter, d->scene, region, d->labels);
}

void OsziWidget::Private::paintCurves(QPainter &painter, const QRect &region)
{
    // Scaled, as on a display with small pixels, lines get thicker: that is the painter's business.
    const bool pixelForPixel = painter.deviceTransform().type() <= QTransform::TxTranslate;
    if (!pixelForPixel || !layer.update(scene))
        oszipainter::paintCurves(painter, scene);
    else
        painter.drawImage(region.topLeft(), layer.picture(), region);
}

void OsziWidget::mousePressEvent(QMouseEvent *event)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    qCDebug(lcPlots) << "emit mouseAtX()";
    emit mouseAtX(qRound(event->localPos().x()));
}

void OsziWidget::mouseMoveEvent(QMouseEvent *event)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    qCDebug(lcPlots) << "emit mouseAtX()";
    emit mouseAtX(qRound(event->localPos().x()));
}

void OsziWidget::mouseReleaseEvent(QMouseEvent *)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    qCDebug(lcPlots) << "emit mouseReleased()";
    emit mouseReleased();
}

void OsziWidget::showMouseMarker(int x)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "x=" << x;
    d->measure(this);
    const OsziScene &scene = d->scene;
    const OsziCurve *curve = scene.highlightedCurve();
    const qint64 index = scene.geometry.sampleAt(x);
    if (!curve || !curve->samples || index < curve->shift || index >= curve->end()) {
        hideMouseMarker();
        return;
    }
    const double value = scene.drawnValue(*curve, index);
    // A curve far outside keeps its hair line just as far outside as can be seen.
    const int y = std::clamp(scene.geometry.yOfValue(value), -kHairLineHalf, height() + kHairLineHalf);
    d->hairLine->move(x, y - kHairLineHalf);
    d->hairLine->show();
    d->mouseReadOut->setText(localNumber(value, 'g', 6));
    d->mouseReadOut->adjustSize();
    d->mouseReadOut->move(readOutPlace({x, y}, d->mouseReadOut->size(), size()));
    d->mouseReadOut->show();
}

void OsziWidget::hideMouseMarker()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    d->hairLine->hide();
    d->mouseReadOut->hide();
}
