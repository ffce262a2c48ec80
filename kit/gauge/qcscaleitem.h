#pragma once

#include "kit/gauge/qcitem.h"

/// The scale that all parts after it refer to, up to the next scale: which angles the gauge's range covers and how far
/// apart the marks are. It paints the track under bands and marks. The radius is that of its outer edge.
class QcScaleItem : public QcItem
{
public:
    explicit QcScaleItem(double radius = 92.0);

    [[nodiscard]] double start() const { return m_start; }
    [[nodiscard]] double sweep() const { return m_sweep; }
    /// Degrees clockwise from the top. The sweep may be negative; it is at most a full turn and not zero. Other angles
    /// are logged and ignored.
    void setAngles(double start, double sweep);
    /// A range instead of the gauge's, such as that of another unit; needles after this part use it as well. Logged and
    /// ignored if not finite.
    void setOwnRange(double from, double to);
    void clearOwnRange();
    [[nodiscard]] double step() const { return m_step; }
    /// Between marks with numerals; 0: chosen to fit the room.
    void setStep(double step);
    [[nodiscard]] double width() const { return m_width; }
    /// Of the track, in percent; 0 paints none.
    void setWidth(double percent);

    /// The scale for a gauge with this range.
    [[nodiscard]] qcgauge::Scale scale(double from, double to) const;
    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    double m_start;
    double m_sweep;
    double m_step = 0.0;
    double m_width = 6.0;
    bool m_hasOwnRange = false;
    double m_ownFrom = 0.0;
    double m_ownTo = 0.0;
};
