#pragma once

#include "kit/gauge/qcitem.h"

/// The marks of the scale: long ones at the numerals, short ones in between as long as they can be told apart. The
/// radius is that of their outer ends.
class QcDegreesItem : public QcItem
{
public:
    explicit QcDegreesItem(double radius = 84.0);

    [[nodiscard]] double length() const { return m_length; }
    /// Of the long ones, in percent.
    void setLength(double percent);
    [[nodiscard]] bool hasMinorMarks() const { return m_minorMarks; }
    void setMinorMarks(bool wanted);

    [[nodiscard]] double neededStep(const QcCanvas &canvas) const override;
    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    void paintMarks(QPainter &painter, const QcCanvas &canvas, double step, double percent) const;
    [[nodiscard]] double distance(const QcCanvas &canvas, double step) const;

    double m_length = 7.0;
    bool m_minorMarks = true;
};
