#pragma once

#include "model/samplelist.h"
#include "plots/oscilloscope/plotgeometry.h"

#include <QColor>
#include <QPoint>
#include <QString>
#include <QVector>

#include <vector>

/// A curve slot: what is drawn of a sample list that somebody else owns.
struct OsziCurve
{
    const SampleList *samples = nullptr; ///< null: the slot is empty
    QColor color = Qt::black;
    bool shown = false;
    double channelOffset = 0.0; ///< added to this curve's samples only
    int shift = 0;              ///< index at which sample 0 stands

    /// Where the curve ends: one behind the index of the last sample.
    [[nodiscard]] qint64 end() const { return qint64(samples->size()) + shift; }
};

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

/// All that a plot shows.
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
    std::vector<OsziCurve> curves;
    QVector<OsziLine> lines;
    QVector<OsziMarker> markers;

    [[nodiscard]] bool isSlot(qint64 slot) const { return slot >= 0 && slot < qint64(curves.size()); }
    /// The highlighted slot, or null when none is highlighted.
    [[nodiscard]] const OsziCurve *highlightedCurve() const
    {
        return isSlot(highlighted) ? &curves[size_t(highlighted)] : nullptr;
    }
    /// The value drawn at an index where the curve has a sample.
    [[nodiscard]] double drawnValue(const OsziCurve &curve, qint64 index) const
    {
        return curve.samples->at(int(index - curve.shift)) + offset + curve.channelOffset;
    }
    [[nodiscard]] QPoint pointOf(const OsziCurve &curve, qint64 index) const
    {
        return {geometry.xOfSample(index), geometry.yOfValue(drawnValue(curve, index))};
    }
};

/// The segments to draw of a slot, by index: none when it is hidden or empty.
[[nodiscard]] inline SampleSpan drawnSpan(const OsziScene &scene, const OsziCurve &curve)
{
    return curve.shown && curve.samples ? visibleSpan(scene.geometry, curve.samples->size(), curve.shift)
                                        : SampleSpan();
}
