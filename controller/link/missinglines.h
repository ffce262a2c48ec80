#pragma once

#include <QtGlobal>

/// Estimates how many sample lines of a shot never came, from when the others came and what the sampling period
/// promises. All times are of one monotonic clock, in ms.
///
/// A line that is late is not missing. What is late cannot be told from what is missing before the link has caught up;
/// so the best of the last seconds counts, and the estimate errs on the side of nothing missing.
class MissingLines
{
public:
    /// Starts over for a shot with this period, in ms.
    void begin(int period);
    /// The period has changed within the shot.
    void setPeriod(int period);
    /// Cheap enough for every line.
    void noteLine(qint64 time);
    /// The box was asked to stop; what comes afterwards is no longer promised.
    void noteStopRequest(qint64 time);

    [[nodiscard]] int count() const { return m_counted + m_lines; }
    /// How many lines are missing.
    [[nodiscard]] int missing() const;
    /// The same, or 0 if it is not worth a word: not more than 10 lines, or not more than 2 % of the shot.
    [[nodiscard]] int worthTelling() const;

private:
    [[nodiscard]] double missingSincePeriod() const;

    int m_period = 0;
    int m_lines = 0;        // with this period
    int m_counted = 0;      // with earlier ones
    double m_missed = 0.0;  // with earlier ones
    qint64 m_first = 0;     // time of the first line
    qint64 m_last = 0;      // of the latest one
    qint64 m_spanBegin = 0; // of the current span of seconds
    qint64 m_stop = -1;     // negative: not asked for
    // Delay of a line against its place in the series, in ms. The smallest one there was, and those of the last spans.
    qint64 m_least = 0;
    qint64 m_leastOfSpan = 0;
    qint64 m_leastOfSpanBefore = 0;
};
