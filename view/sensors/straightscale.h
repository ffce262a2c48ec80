#pragma once

#include "view/sensors/sensorscale.h"

#include <QColor>
#include <QRectF>

class QFont;
class QPainter;

/// A straight scale from left to right, or from the bottom up where there is more height than width. Lengths across it
/// are measured from its line: positive towards the labels, negative towards the pointer.
class StraightScale
{
public:
    StraightScale(const SensorScale &scale, const QRectF &line, bool isUpright);

    [[nodiscard]] bool isUpright() const { return m_isUpright; }
    [[nodiscard]] QPointF point(double value, double across) const;
    /// Between two values, and between two lengths across.
    [[nodiscard]] QRectF stripe(double from, double to, double begin, double end) const;

    /// Green inside the limits, red outside; nothing without limits.
    void paintBands(QPainter &painter, const SensorLimits &limits, double begin, double end) const;
    /// Long ticks with their numbers at as many steps as there is room for, short ones at the others.
    void paintTicks(QPainter &painter, double begin, double length) const;
    /// The widest number in the painter's font.
    [[nodiscard]] static double widestLabel(const QFont &font, const SensorScale &scale);

private:
    /// The number of steps from one label to the next: 1, 2, 5, 10, ...
    [[nodiscard]] int labelStride(const QPainter &painter) const;
    void paintLabel(QPainter &painter, double value, double across) const;

    SensorScale m_scale;
    QRectF m_line;
    bool m_isUpright;
};

/// The colours of the ranges inside and outside of limits, and of a scale below them.
[[nodiscard]] QColor insideColor();
[[nodiscard]] QColor outsideColor();
[[nodiscard]] QColor troughColor();
