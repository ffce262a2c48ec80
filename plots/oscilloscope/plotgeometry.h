#pragma once

#include <QtGlobal>

#include <algorithm>

/// Where values, samples and times lie in the picture. All pixel results are saturated to +-kFarAway, so that no
/// sample, zoom or start index overflows.
struct PlotGeometry
{
    static constexpr int kLeftMargin = 70;   ///< pixels left of the plot area, for the value labels
    static constexpr int kFarAway = 1 << 30; ///< pixels; what lies farther outside is put here

    int width = 0;         ///< of the contents rectangle, pixels
    int widgetWidth = 0;   ///< with the frame, pixels
    int height = 0;        ///< of the widget, pixels
    int margin = 0;        ///< above and below the plot area, pixels
    double minValue = 0.0; ///< at the bottom edge of the plot area
    double maxValue = 255.0;
    int startIndex = 0; ///< the sample at the left edge; may be negative
    int zoom = 1;       ///< pixels per sample, at least 1
    int clock = 1;      ///< milliseconds per sample, at least 1

    /// Height of the plot area; not positive when the row is collapsed.
    [[nodiscard]] int plotHeight() const { return height - 2 * margin; }
    [[nodiscard]] int bottom() const { return height - margin; }
    [[nodiscard]] double span() const { return maxValue - minValue; }

    /// The row of a value: rounded, halves away from zero.
    [[nodiscard]] int yOfValue(double value) const;
    [[nodiscard]] int xOfSample(qint64 index) const;
    [[nodiscard]] int xOfTime(qint64 milliseconds) const;
    /// Pixels from the left edge of the plot area to a time, not saturated.
    [[nodiscard]] qint64 distanceOfTime(qint64 milliseconds) const;

    /// The samples that fit between the left edge and the end of the contents rectangle; never negative.
    [[nodiscard]] int visibleSamples() const { return std::max(0, width - kLeftMargin) / zoom; }
    [[nodiscard]] qint64 lastVisibleIndex() const { return qint64(startIndex) + visibleSamples(); }
    /// The sample under a column; columns left of the plot area count towards the start index.
    [[nodiscard]] qint64 sampleAt(int x) const { return (qint64(x) - kLeftMargin) / zoom + startIndex; }
};

inline int PlotGeometry::yOfValue(double value) const
{
    const double y = double(bottom()) - double(plotHeight()) * (value - minValue) / span();
    if (!(y < kFarAway))
        return kFarAway;
    if (y <= -kFarAway)
        return -kFarAway;
    const int whole = int(y);
    const double rest = y - whole;
    return whole + int(rest >= 0.5) - int(rest <= -0.5);
}

[[nodiscard]] bool operator==(const PlotGeometry &a, const PlotGeometry &b);
[[nodiscard]] inline bool operator!=(const PlotGeometry &a, const PlotGeometry &b)
{
    return !(a == b);
}

/// The samples whose joining segments are drawn: `first` to `last`, both included.
struct SampleSpan
{
    qint64 first = 0;
    qint64 last = -1;
    [[nodiscard]] bool isEmpty() const { return last <= first; } ///< fewer than two samples make no segment
};

/// What is drawn of a curve of `count` samples, the first of which lies at index `shift`: nothing unless it reaches
/// beyond the start index. Indices, not samples.
[[nodiscard]] SampleSpan visibleSpan(const PlotGeometry &geometry, int count, int shift = 0);
