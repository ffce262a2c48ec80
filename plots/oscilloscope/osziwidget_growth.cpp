#include "plots/oscilloscope/oszipainter.h"
#include "plots/oscilloscope/osziwidget_p.h"

#include <algorithm>
#include <utility>

namespace {

constexpr size_t kMostGrowing = 8; // slots that are looked at whenever samples arrive
constexpr int kPenReach = 3;       // pixels that the thick pen reaches beyond a sample, at most

} // namespace

/// Looking at all slots costs more than the picture of a few new samples: those that are expected to grow are looked at
/// now, the others a little later.
void OsziWidget::samplesAppended()
{
    d->measure(this);
    std::vector<int> &growing = d->growingSlots;
    for (const int slot : {d->scene.highlighted, d->topSlot}) {
        if (std::find(growing.begin(), growing.end(), slot) == growing.end())
            d->noticeGrowth(this, slot);
    }
    for (size_t i = 0; i < growing.size(); ++i)
        d->noticeGrowth(this, growing[i]);
    if (!d->sweepTimer.isActive())
        d->sweepTimer.start();
}

void OsziWidget::Private::curvesChanged(OsziWidget *widget)
{
    layer.invalidate();
    widget->update();
}

void OsziWidget::Private::countSamples()
{
    for (size_t slot = 0; slot < scene.curves.size(); ++slot)
        knownCounts[slot] = scene.curves[slot].samples ? scene.curves[slot].samples->size() : 0;
}

void OsziWidget::Private::noticeAllGrowth(OsziWidget *widget)
{
    measure(widget);
    for (int slot = 0; slot <= topSlot; ++slot)
        noticeGrowth(widget, slot);
}

void OsziWidget::Private::noticeGrowth(OsziWidget *widget, int slot)
{
    if (!scene.isSlot(slot) || !scene.curves[size_t(slot)].samples)
        return;
    const OsziCurve &curve = scene.curves[size_t(slot)];
    const int oldCount = std::exchange(knownCounts[size_t(slot)], curve.samples->size());
    if (curve.samples->size() <= oldCount)
        return;
    if (std::find(growingSlots.begin(), growingSlots.end(), slot) == growingSlots.end()) {
        if (growingSlots.size() == kMostGrowing)
            growingSlots.erase(growingSlots.begin());
        growingSlots.push_back(slot);
    }
    if (!curve.shown)
        return;
    QRect changed = grownRect(curve, oldCount);
    if (slot == scene.highlighted) {
        changed |= endValueRect;
        endValueRect = oszipainter::endValueRect(scene, widget->font(), labels);
        changed |= endValueRect;
    } else {
        layer.extend(curve, oldCount);
    }
    widget->update(changed); // one rectangle: the painter is slow where it has to clip to several
}

/// The columns from a curve's old end to its new one; empty when none is in view.
QRect OsziWidget::Private::grownRect(const OsziCurve &curve, int oldCount) const
{
    const PlotGeometry &geometry = scene.geometry;
    const qint64 first = std::max<qint64>(qint64(oldCount) + curve.shift - 1, geometry.startIndex);
    const qint64 last = std::min<qint64>(curve.end() - 1, geometry.lastVisibleIndex());
    if (last < first)
        return {};
    const int left = geometry.xOfSample(first) - kPenReach;
    const int right = geometry.xOfSample(last) + kPenReach;
    return QRect(QPoint(left, 0), QPoint(right, geometry.height - 1));
}
