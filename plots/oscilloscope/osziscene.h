#pragma once

#include "plots/oscilloscope/curveslots.h"
#include "plots/oscilloscope/plotgeometry.h"

#include <QColor>
#include <QPoint>
#include <QString>
#include <QVector>

/// A dashed horizontal reference line.
struct OsziLine
{
    double value = 0.0;
    QColor color = Qt::black;
};

/// A dashed vertical marker and the name of the phase that ends at it.
struct OsziMarker
{
    int position = -1; ///< milliseconds
    QColor color = Qt::black;
    QString phase;
};

/// Everything that a plot shows, and the rules for what it can be set to: the setters refuse values that make no sense
/// and indices that do not exist. They return whether something may look different now.
struct OsziScene
{
    PlotGeometry geometry;
    double valueGrid = 50.0; ///< value units
    bool valueGridAuto = true;
    int clockGrid = 100; ///< milliseconds
    bool clockGridAuto = true;
    double offset = 0.0;  ///< added to every sample
    int highlighted = -1; ///< slot; -1: none
    QColor highlightColor = Qt::red;
    CurveSlots curves;
    QVector<OsziLine> lines;
    QVector<OsziMarker> markers;

    /// The highlighted slot, or null when none is highlighted.
    [[nodiscard]] const OsziCurve *highlightedCurve() const { return curves.find(highlighted); }
    /// The value drawn at an index where the curve has a sample.
    [[nodiscard]] double drawnValue(const OsziCurve &curve, qint64 index) const
    {
        return curve.samples->at(int(index - curve.shift)) + offset + curve.channelOffset;
    }
    [[nodiscard]] QPoint pointOf(const OsziCurve &curve, qint64 index) const
    {
        return {geometry.xOfSample(index), geometry.yOfValue(drawnValue(curve, index))};
    }

    /// The ends of the value axis keep a distance of more than 0.0001.
    bool setMinValue(double value);
    bool setMaxValue(double value);
    bool setZoom(int zoom);
    /// The nearest zoom in whole pixels, at most the largest int; for a zoom of at least 1.
    [[nodiscard]] static int wholeZoom(double zoom);
    bool setClock(int clock);
    bool setValueGrid(double grid);
    void setValueGridAuto(bool automatic);
    bool setClockGrid(int grid); ///< at least one clock
    bool setOffset(double value);

    void setMarkerCount(int n);
    bool setMarker(int index, int position, const QColor &color); ///< logs nothing
    bool setMarkerPosition(int index, int position);
    bool setPhaseName(int index, const QString &name);
    void setLineCount(int n);
    bool setLine(int index, const OsziLine &line);
};

/// The segments of a slot to draw, by index: none when it is hidden or empty.
[[nodiscard]] inline SampleSpan drawnSpan(const OsziScene &scene, const OsziCurve &curve)
{
    return curve.shown && curve.samples ? visibleSpan(scene.geometry, curve.samples->size(), curve.shift)
                                        : SampleSpan();
}
