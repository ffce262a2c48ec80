#pragma once

#include "kit/gauge/qcitem.h"

/// A line along the scale, over all of it or between two values. The radius is that of its outer edge.
class QcArcItem : public QcItem
{
public:
    explicit QcArcItem(double radius = 84.0);

    [[nodiscard]] QColor color() const { return m_color; }
    /// Invalid: the theme's soft colour.
    void setColor(const QColor &color);
    [[nodiscard]] double width() const { return m_width; }
    /// In percent; painted at least one device pixel wide.
    void setWidth(double percent);
    /// From one value to the other, as far as they are on the scale; ignored if not finite.
    void setSpan(double from, double to);
    /// Covers the whole scale.
    void clearSpan();

    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    QColor m_color;
    double m_width = 0.7;
    bool m_hasSpan = false;
    double m_from = 0.0;
    double m_to = 0.0;
};
