#include "plots/oscilloscope/osziwidget.h"

#include "plots/common/logging.h"
#include "plots/oscilloscope/gridfollower.h"
#include "plots/oscilloscope/growthwatch.h"
#include "plots/oscilloscope/labelmargin.h"
#include "plots/oscilloscope/mousemarker.h"
#include "plots/oscilloscope/oszipicture.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

OsziWidget::OsziWidget(QWidget *parent)
    : QFrame(parent)
    , m_picture(std::make_unique<OsziPicture>())
    , m_mouseMarker(std::make_unique<MouseMarker>(this))
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
    m_scene.curves.resize(kNumSlots);
    m_growth = std::make_unique<GrowthWatch>(m_scene.curves, [this](int slot, int n) { updateGrown(slot, n); });
    m_grids = std::make_unique<GridFollower>(
        m_scene, [this] { announceValueGrid(); }, [this] { announceClockGrid(); });
    announceValueGrid();
    announceClockGrid();
}

OsziWidget::~OsziWidget() = default;

PlotGeometry OsziWidget::plotGeometry() const
{
    ensurePolished(); // before this, the widget does not have the font of the style sheet
    if (m_margin < 0)
        m_margin = labelMargin(font());
    PlotGeometry geometry = m_scene.geometry;
    geometry.margin = m_margin;
    geometry.width = contentsRect().width();
    geometry.widgetWidth = width();
    geometry.height = height();
    return geometry;
}

void OsziWidget::announceValueGrid()
{
    qCDebug(lcPlots) << "emit valueGridChanged()";
    emit valueGridChanged(m_scene.valueGrid);
}

void OsziWidget::announceClockGrid()
{
    qCDebug(lcPlots) << "emit clockGridChanged()";
    emit clockGridChanged(m_scene.clockGrid);
}

void OsziWidget::updateCurvesIf(bool changed)
{
    if (!changed)
        return;
    m_picture->invalidateCurves();
    update();
}

void OsziWidget::updateGrown(int slot, int oldCount)
{
    measure();
    update(m_picture->grow(m_scene, slot, oldCount, font()));
}

void OsziWidget::setCurve(int slot, const SampleList *samples, const QColor &color, bool shown)
{
    const bool changed = m_scene.curves.setCurve(slot, samples, color, shown);
    m_growth->setKnown(slot);
    updateCurvesIf(changed);
}

void OsziWidget::setCurvePlace(int slot, int shift, double channelOffset)
{
    updateCurvesIf(m_scene.curves.setPlace(slot, shift, channelOffset));
}

void OsziWidget::clearCurves()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_scene.curves.clear();
    m_growth->forget();
    hideMouseMarker();
    updateCurvesIf(true);
}

void OsziWidget::samplesAppended()
{
    m_growth->look(m_scene.highlighted);
}

void OsziWidget::refresh()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_growth->setAllKnown();
    updateCurvesIf(true);
}

void OsziWidget::setVerticalMarker(int index, int position, const QColor &color)
{
    const bool changed = m_scene.setMarker(index, position, color);
    if (!changed)
        qCDebug(lcPlots).noquote() << "void OsziWidget::setVerticalMarker(int, int, QColor) ERROR: index out of range!";
    updateIf(changed);
}

void OsziWidget::setVerticalMarkerCount(int n)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "n=" << n;
    m_scene.setMarkerCount(n);
    update();
}

void OsziWidget::setHorizontalLineCount(int n)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "n=" << n;
    m_scene.setLineCount(n);
    update();
}

void OsziWidget::setHorizontalLine(int index, double value, const QColor &color)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    updateIf(m_scene.setLine(index, {value, color}));
}

void OsziWidget::setEnabled(int channel, bool state)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "channel=" << channel << "state=" << state;
    updateCurvesIf(m_scene.curves.setShown(channel, state));
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
    m_scene.curves.setAllShown(state);
    updateCurvesIf(true);
}

void OsziWidget::setStartIndex(int start)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "start=" << start;
    m_scene.geometry.startIndex = start;
    update();
}

void OsziWidget::setMinValue(double value)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "value=" << value;
    updateIf(m_scene.setMinValue(value));
}

void OsziWidget::setMaxValue(double value)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "value=" << value;
    updateIf(m_scene.setMaxValue(value));
}

void OsziWidget::setVerticalMarker0(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    updateIf(m_scene.setMarkerPosition(0, position));
}

void OsziWidget::setVerticalMarker1(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    updateIf(m_scene.setMarkerPosition(1, position));
}

void OsziWidget::setVerticalMarker2(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    updateIf(m_scene.setMarkerPosition(2, position));
}

void OsziWidget::setVerticalMarker3(int position)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "position=" << position;
    updateIf(m_scene.setMarkerPosition(3, position));
}

void OsziWidget::setPhaseName(int phase, const QString &name)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "phase=" << phase << "name=" << name;
    updateIf(m_scene.setPhaseName(phase, name));
}

void OsziWidget::setZoom(int zoom)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "zoom=" << zoom;
    updateIf(m_scene.setZoom(zoom));
}

void OsziWidget::setZoom(double zoom)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "zoom=" << zoom;
    if (zoom >= 1.0)
        setZoom(OsziScene::wholeZoom(zoom));
}

void OsziWidget::setClock(int clock)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "clock=" << clock;
    updateIf(m_scene.setClock(clock));
}

void OsziWidget::setClockGrid(int grid)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "grid=" << grid;
    updateIf(m_grids->setClockGrid(grid));
}

void OsziWidget::setClockGridAuto(bool automatic)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "automatic=" << automatic;
    m_scene.clockGridAuto = automatic;
    update();
}

void OsziWidget::setOffset(double offset)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "offset=" << offset;
    updateIf(m_scene.setOffset(offset));
}

void OsziWidget::setChannelOffset(int channel, double offset)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "channel=" << channel << "offset=" << offset;
    updateCurvesIf(m_scene.curves.setChannelOffset(channel, offset));
}

void OsziWidget::clearChannelOffsets()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_scene.curves.clearChannelOffsets();
    updateCurvesIf(true);
}

void OsziWidget::setAutoChannelOffsets(int time)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "time=" << time;
    m_scene.curves.allPassThroughZero(time / m_scene.geometry.clock);
    updateCurvesIf(true);
}

void OsziWidget::setAutoChannelOffset(int channel, int time)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "channel=" << channel << "time=" << time;
    updateCurvesIf(m_scene.curves.passThroughZero(channel, time / m_scene.geometry.clock));
}

void OsziWidget::setValueGrid(double grid)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "grid=" << grid;
    updateIf(m_grids->setValueGrid(grid));
}

void OsziWidget::setValueGridAuto(bool automatic)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "automatic=" << automatic;
    m_scene.setValueGridAuto(automatic);
    update();
}

void OsziWidget::highlightSingle(int index)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "index=" << index;
    m_scene.highlighted = index;
    update();
}

void OsziWidget::setHighlightColor(const QColor &color)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "color=" << color;
    m_scene.highlightColor = color;
    update();
}

void OsziWidget::showMouseMarker(int x)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "x=" << x;
    measure();
    if (!m_mouseMarker->show(m_scene, x))
        hideMouseMarker();
}

void OsziWidget::hideMouseMarker()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_mouseMarker->hide();
}

void OsziWidget::paintEvent(QPaintEvent *event)
{
    measure();
    m_grids->follow();
    const QRect region = event->rect();
    QPainter painter(this);
    painter.setClipRect(region); // clips nothing more, but lets the painter draw thin lines in one piece
    drawFrame(&painter);
    m_picture->paint(painter, m_scene, region);
}

void OsziWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_margin = -1; // the labels may be in another font now
    QFrame::changeEvent(event);
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
