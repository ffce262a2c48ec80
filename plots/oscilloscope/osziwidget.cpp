#include "plots/oscilloscope/osziwidget.h"

#include "plots/common/logging.h"
#include "plots/oscilloscope/osziwidget_p.h"

#include <QPixmap>
#include <QStaticText>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

constexpr QSize kHairLineSize(2, 800);
constexpr int kSweepPeriod = 200; // milliseconds

int marginFor(const QFont &font)
{
    QStaticText sample(QStringLiteral("ABCgj"));
    sample.prepare(QTransform(), font);
    return int(sample.size().height()) + 2;
}

QLabel *createHairLine(QWidget *parent)
{
    QPixmap pixmap(kHairLineSize);
    pixmap.fill(Qt::red);
    auto *label = new QLabel(parent);
    label->setObjectName(QStringLiteral("hairLine"));
    label->setPixmap(pixmap);
    label->resize(kHairLineSize);
    return label;
}

QLabel *createMouseReadOut(QWidget *parent)
{
    auto *label = new QLabel(QStringLiteral("OOOOOOOOO"), parent);
    label->setObjectName(QStringLiteral("mouseReadOut"));
    label->setStyleSheet(
        QStringLiteral("QLabel { color: red;          background: rgba(255, 255, 255, 128);         font-size:16px;}"));
    label->adjustSize();
    return label;
}

} // namespace

OsziCurve *OsziWidget::Private::slotAt(int slot)
{
    if (scene.isSlot(slot))
        return &scene.curves[size_t(slot)];
    qCDebug(lcPlots).nospace() << " ERROR: index out of range! (" << slot << ")";
    return nullptr;
}

OsziWidget::OsziWidget(QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<Private>())
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
    d->scene.curves.resize(kNumSlots);
    d->knownCounts.resize(kNumSlots, 0);
    d->sweepTimer.setSingleShot(true);
    d->sweepTimer.setInterval(kSweepPeriod);
    connect(&d->sweepTimer, &QTimer::timeout, this, [this] { d->noticeAllGrowth(this); });
    d->scene.geometry.margin = marginFor(font());
    d->hairLine = createHairLine(this);
    d->mouseReadOut = createMouseReadOut(this);
    for (QLabel *label : {d->hairLine, d->mouseReadOut}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents); // the plot gets what happens under them
        label->hide();
    }
    qCDebug(lcPlots) << "emit valueGridChanged()";
    emit valueGridChanged(d->scene.valueGrid);
    qCDebug(lcPlots) << "emit clockGridChanged()";
    emit clockGridChanged(d->scene.clockGrid);
}

OsziWidget::~OsziWidget() = default;

void OsziWidget::setCurve(int slot, const SampleList *samples, const QColor &color, bool shown)
{
    OsziCurve *curve = d->slotAt(slot);
    if (!curve)
        return;
    curve->samples = samples;
    curve->color = color;
    curve->shown = shown;
    d->knownCounts[size_t(slot)] = samples ? samples->size() : 0;
    d->topSlot = samples ? std::max(d->topSlot, slot) : d->topSlot;
    d->curvesChanged(this);
}

void OsziWidget::setCurvePlace(int slot, int shift, double channelOffset)
{
    OsziCurve *curve = d->slotAt(slot);
    if (!curve || !std::isfinite(channelOffset))
        return;
    curve->shift = shift;
    curve->channelOffset = channelOffset;
    d->curvesChanged(this);
}

PlotGeometry OsziWidget::plotGeometry() const
{
    d->measure(this);
    return d->scene.geometry;
}

void OsziWidget::clearCurves()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    for (OsziCurve &curve : d->scene.curves) {
        curve.samples = nullptr;
        curve.shown = false;
    }
    d->topSlot = -1;
    d->growingSlots.clear();
    hideMouseMarker();
    d->curvesChanged(this);
}

const SampleList *OsziWidget::curve(int slot) const
{
    return d->scene.isSlot(slot) ? d->scene.curves[size_t(slot)].samples : nullptr;
}

bool OsziWidget::isShown(int slot) const
{
    return d->scene.isSlot(slot) && d->scene.curves[size_t(slot)].shown;
}

void OsziWidget::refresh()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    d->countSamples();
    d->curvesChanged(this);
}

void OsziWidget::setVerticalMarker(int index, int position, const QColor &color)
{
    if (index < 0 || index >= d->scene.markers.size()) {
        qCDebug(lcPlots).noquote() << "void OsziWidget::setVerticalMarker(int, int, QColor) ERROR: index out of range!";
        return;
    }
    d->scene.markers[index].position = position;
    d->scene.markers[index].color = color;
    update();
}

void OsziWidget::setVerticalMarkerCount(int n)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "n=" << n;
    d->scene.markers.resize(std::max(n, 0));
    update();
}

void OsziWidget::setHorizontalLineCount(int n)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "n=" << n;
    d->scene.lines.resize(std::max(n, 0));
    update();
}

void OsziWidget::setHorizontalLine(int index, double value, const QColor &color)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (index < 0 || index >= d->scene.lines.size()) {
        qCDebug(lcPlots).nospace() << " ERROR: index out of range! (" << index << ")";
        return;
    }
    d->scene.lines[index] = {value, color};
    update();
}

double OsziWidget::minValue() const
{
    return d->scene.geometry.minValue;
}

double OsziWidget::maxValue() const
{
    return d->scene.geometry.maxValue;
}

double OsziWidget::valueGrid() const
{
    return d->scene.valueGrid;
}

int OsziWidget::clockGrid() const
{
    return d->scene.clockGrid;
}

int OsziWidget::startIndex() const
{
    return d->scene.geometry.startIndex;
}

int OsziWidget::zoom() const
{
    return d->scene.geometry.zoom;
}

int OsziWidget::clock() const
{
    return d->scene.geometry.clock;
}

int OsziWidget::highlighted() const
{
    return d->scene.highlighted;
}

double OsziWidget::offset() const
{
    return d->scene.offset;
}

double OsziWidget::channelOffset(int slot) const
{
    return d->scene.isSlot(slot) ? d->scene.curves[size_t(slot)].channelOffset : 0.0;
}

int OsziWidget::visibleSamples() const
{
    return std::max(0, (contentsRect().width() - kLeftMargin) / d->scene.geometry.zoom);
}

int OsziWidget::verticalMarkerCount() const
{
    return d->scene.markers.size();
}

int OsziWidget::horizontalLineCount() const
{
    return d->scene.lines.size();
}
