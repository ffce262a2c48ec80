#pragma once

#include "plots/oscilloscope/plotgeometry.h"

#include <QString>

/// The spacing that puts horizontal grid lines 25 to 50 pixels apart, as far as the ladder 10000, 5000, 1000, ...,
/// 0.001, 0.0005 and its doublings allow. A collapsed row or an infinite range gives 10000.
[[nodiscard]] double autoValueGrid(double span, int plotHeight);

/// Digits after the decimal point of the value labels, for a range of this span.
[[nodiscard]] int labelDecimals(double span);

/// The spacing in milliseconds, reached from `clockGrid` by halving, dividing by 5 or doubling, that puts vertical
/// grid lines 50 to 100 pixels apart where that can be reached. Zoom, clock and clockGrid are at least 1.
[[nodiscard]] int autoClockGrid(int zoom, int clock, int clockGrid);

/// "1000ms", "1.5s"; from 1000001 ms on in thousands of seconds with the unit "Ts".
[[nodiscard]] QString timeLabel(qint64 milliseconds);

/// Multiples of a grid step: `first`, `first + stride`, ... up to `last`; none when last < first.
struct GridLines
{
    qint64 first = 0;
    qint64 last = -1;
    qint64 stride = 1; ///< above 1 where the step is finer than a pixel
};

/// The horizontal grid lines whose line or label can show in the widget. A step that is not positive has none.
[[nodiscard]] GridLines valueGridLines(const PlotGeometry &geometry, double grid);

/// The vertical grid lines right of the left edge whose line or label can show. A step below 1 has none.
[[nodiscard]] GridLines clockGridLines(const PlotGeometry &geometry, int clockGrid);
