#pragma once

#include "plots/charts/statistics.h"

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>

/// Where the parts of a box plot lie. "Along" runs with the value axis, "across" over the thickness of the plot;
/// a horizontal plot has its axis from left to right, a vertical one is turned by a quarter: upwards.
struct BoxPlotGeometry
{
    static constexpr int kFarAway = 1 << 24; ///< pixels; what lies farther outside is put here

    QSize size; ///< of the widget
    QMargins margins;
    bool vertical = false;
    double axisMinimum = 0.0;
    double axisMaximum = 1.0; ///< not below the minimum; if it equals it, all values lie at the start

    /// Length of the value axis and thickness of the plot in pixels; never negative.
    [[nodiscard]] int length() const;
    [[nodiscard]] int thickness() const;
    [[nodiscard]] QRect plotArea() const;

    /// Pixels from the start of the value axis, saturated to +-kFarAway; 0 for what is not a number.
    [[nodiscard]] int along(double value) const;
    /// True if a value lies on the axis and before its end.
    [[nodiscard]] bool isInside(double value) const;
    /// along(), moved to the nearest end of the axis.
    [[nodiscard]] int clampedAlong(double value) const;

    /// The pixel at a distance along the axis and one across it.
    [[nodiscard]] QPoint pixel(int along, int across) const;
};

/// Where a label of a given extent begins along the axis.
struct LabelPlaces
{
    static constexpr int kHidden = -BoxPlotGeometry::kFarAway;
    int minimum = kHidden;
    int median = kHidden;
    int maximum = kHidden;
};

/// Lengths of the three label texts along the axis, in pixels.
struct LabelLengths
{
    int minimum = 0;
    int median = 0;
    int maximum = 0;
};

/// Labels begin 20 pixels before the positions of their values. One that would leave the widget is moved in. The outer
/// two move outwards where they would cover the median's, and are hidden if they say the same or have no room.
[[nodiscard]] LabelPlaces placeLabels(const BoxPlotGeometry &geometry, const statistics::FiveNumbers &numbers,
                                      const LabelLengths &lengths);
