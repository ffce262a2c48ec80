#pragma once

#include "kit/gauge/qcitem.h"

/// The face of the gauge with a thin ring around it. The radius is that of the ring's outer edge.
class QcBackgroundItem : public QcItem
{
public:
    explicit QcBackgroundItem(double radius = 99.0);

    [[nodiscard]] QColor color() const { return m_color; }
    /// Invalid: the theme's.
    void setColor(const QColor &color);
    [[nodiscard]] double ringWidth() const { return m_ringWidth; }
    /// In percent; 0 paints none.
    void setRingWidth(double percent);

    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    QColor m_color;
    double m_ringWidth = 1.6;
};
