#pragma once

#include "plots/oscilloscope/curvelayer.h"
#include "plots/oscilloscope/labelcache.h"
#include "plots/oscilloscope/osziscene.h"
#include "plots/oscilloscope/osziwidget.h"

#include <QLabel>
#include <QTimer>

#include <vector>

/// What the parts of OsziWidget share.
struct OsziWidget::Private
{
    OsziScene scene;
    LabelCache labels;
    QLabel *hairLine = nullptr;     ///< owned by the widget
    QLabel *mouseReadOut = nullptr; ///< owned by the widget
    bool announcingGrid = false;    ///< a grid spacing is being announced: what comes back is its echo

    CurveLayer layer;
    std::vector<int> knownCounts;  ///< samples of each slot when last looked at for growth
    std::vector<int> growingSlots; ///< the last few that grew
    int topSlot = -1;              ///< no slot above holds a curve
    QRect endValueRect;            ///< where the highlighted curve's last value stands
    QTimer sweepTimer;             ///< looks for growth where it is not expected

    /// The slot, or null with an error in the debug output.
    OsziCurve *slotAt(int slot);
    void setMarkerPosition(OsziWidget *widget, int index, int position);
    void measure(const OsziWidget *widget);
    void followValueGrid(OsziWidget *widget);
    void followClockGrid(OsziWidget *widget);
    void paintCurves(QPainter &painter, const QRect &region);

    /// Curves look different now.
    void curvesChanged(OsziWidget *widget);
    void countSamples();
    void noticeGrowth(OsziWidget *widget, int slot);
    void noticeAllGrowth(OsziWidget *widget);
    [[nodiscard]] QRect grownRect(const OsziCurve &curve, int oldCount) const;
};
