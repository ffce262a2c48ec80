#include "plots/common/logging.h"
#include "plots/oscilloscope/osziwidget_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kSmallestRange = 0.0001; // value units between the lower and the upper edge

/// channelOffset that lets a curve pass through zero at a sample; the slot keeps its own where there is no such sample.
void passThroughZero(OsziCurve &curve, qint64 index)
{
    if (curve.samples && index >= curve.shift && index < curve.end())
        curve.channelOffset = -curve.samples->at(int(index - curve.shift));
}

} // namespace

void OsziWidget::Private::setMarkerPosition(OsziWidget *widget, int index, int position)
{
    if (index >= scene.markers.size()) {
        qCDebug(lcPlots).nospace() << " ERROR: index out of range! (" << index << ")";
        return;
    }
    scene.markers[index].position = position;
    widget->update();
}

void OsziWidget::setEnabled(int channel, bool state)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "channel=" << channel << "state=" << state;
    OsziCurve *curve = d->slotAt(channel);
    if (!curve)
        return;
    curve->shown = state;
    d->curvesChanged(this);
}

void OsziWidget::setEnabled(int channel)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    setEnabled(channel, true);
}

void OsziWidget::setDisabled(int channel)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    setEnabled(channel, false);
}

void OsziWidget::setAllEnabled(bool state)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "state=" << state;
    for (OsziCurve &curve : d->scene.curves)
        curve.shown = state;
    d->curvesChanged(this);
}

void OsziWidget::setStartIndex(int start)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "start=" << start;
    d->scene.geometry.startIndex = start;
    update();
}

void OsziWidget::setMinValue(double value)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "value=" << value;
    if (!std::isfinite(value) || !(value < d->scene.geometry.maxValue - kSmallestRange))
        return;
    d->scene.geometry.minValue = value;
    update();
}

void OsziWidget::setMaxValue(double value)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "value=" << value;
    if (!std::isfinite(value) || !(value > d->scene.geometry.minValue + kSmallestRange))
        return;
    d->scene.geometry.maxValue = value;
    update();
}

void OsziWidget::setVerticalMarker0(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    d->setMarkerPosition(this, 0, position);
}

void OsziWidget::setVerticalMarker1(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    d->setMarkerPosition(this, 1, position);
}

void OsziWidget::setVerticalMarker2(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    d->setMarkerPosition(this, 2, position);
}

void OsziWidget::setVerticalMarker3(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    d->setMarkerPosition(this, 3, position);
}

void OsziWidget::setPhaseName(int phase, const QString &name)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "phase=" << phase << "name=" << name;
    if (phase < 0 || phase >= d->scene.markers.size()) {
        qCDebug(lcPlots).nospace() << " ERROR: index out of range! (" << phase << ")";
        return;
    }
    d->scene.markers[phase].phase = name;
    update();
}

void OsziWidget::setZoom(int zoom)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "zoom=" << zoom;
    if (zoom <= 0)
        return;
    d->scene.geometry.zoom = zoom;
    update();
}

void OsziWidget::setZoom(double zoom)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "zoom=" << zoom;
    if (!(zoom >= 1.0))
        return;
    setZoom(int(std::min(std::round(zoom), double(std::numeric_limits<int>::max()))));
}

void OsziWidget::setClock(int clock)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "clock=" << clock;
    if (clock <= 0)
        return;
    d->scene.geometry.clock = clock;
    update();
}

void OsziWidget::setClockGrid(int grid)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "grid=" << grid;
    if (grid < d->scene.geometry.clock || d->announcingGrid)
        return;
    d->scene.clockGrid = grid;
    update();
}

void OsziWidget::setClockGridAuto(bool automatic)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "automatic=" << automatic;
    d->scene.clockGridAuto = automatic;
    update();
}

void OsziWidget::setOffset(double offset)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "offset=" << offset;
    if (!std::isfinite(offset))
        return;
    d->scene.offset = offset;
    update();
}

void OsziWidget::setChannelOffset(int channel, double offset)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "channel=" << channel << "offset=" << offset;
    OsziCurve *curve = d->slotAt(channel);
    if (!curve || !std::isfinite(offset))
        return;
    curve->channelOffset = offset;
    d->curvesChanged(this);
}

void OsziWidget::clearChannelOffsets()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    for (OsziCurve &curve : d->scene.curves)
        curve.channelOffset = 0.0;
    d->curvesChanged(this);
}

void OsziWidget::setAutoChannelOffsets(int time)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "time=" << time;
    for (OsziCurve &curve : d->scene.curves)
        passThroughZero(curve, time / d->scene.geometry.clock);
    d->curvesChanged(this);
}

void OsziWidget::setAutoChannelOffset(int channel, int time)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "channel=" << channel << "time=" << time;
    OsziCurve *curve = d->slotAt(channel);
    if (!curve)
        return;
    passThroughZero(*curve, time / d->scene.geometry.clock);
    d->curvesChanged(this);
}

void OsziWidget::setValueGrid(double grid)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "grid=" << grid;
    if (!std::isfinite(grid) || !(grid > 0.0) || d->announcingGrid)
        return;
    d->scene.valueGrid = grid;
    update();
}

void OsziWidget::setValueGridAuto(bool automatic)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "automatic=" << automatic;
    d->scene.valueGridAuto = automatic;
    if (automatic)
        d->scene.valueGrid = 1.0;
    update();
}

void OsziWidget::highlightSingle(int index)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "index=" << index;
    d->scene.highlighted = index;
    update();
}

void OsziWidget::setHighlightColor(const QColor &color)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "color=" << color;
    d->scene.highlightColor = color;
    update();
}
