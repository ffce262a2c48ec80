#pragma once

#include "plots/labelcache.h"
#include "plots/osziscene.h"
#include "plots/osziwidget.h"

#include <QLabel>

/// What the parts of OsziWidget share.
struct OsziWidget::Private
{
    OsziScene scene;
    LabelCache labels;
    QLabel *hairLine = nullptr;     ///< owned by the widget
    QLabel *mouseReadOut = nullptr; ///< owned by the widget
    bool announcingGrid = false;    ///< a grid spacing is being announced: what comes back is its echo

    /// The slot, or null with an error in the debug output.
    OsziCurve *slotAt(int slot);
    void setMarkerPosition(OsziWidget *widget, int index, int position);
    void measure(const OsziWidget *widget);
    void followValueGrid(OsziWidget *widget);
    void followClockGrid(OsziWidget *widget);
};
