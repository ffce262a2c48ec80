#pragma once

#include "kit/gauge/qcitem.h"

/// Points at a value on the scale: a slim needle on a hub, or a small triangle that marks a held value. The radius is
/// that of its tip.
class QcNeedleItem : public QcItem
{
public:
    enum class Shape {
        Needle, ///< from the middle of the gauge
        Marker, ///< a triangle outside the tip
    };
    enum class Source { Value, HeldMinimum, HeldMaximum, Own };

    /// With a radius that suits the default radii of the other parts.
    explicit QcNeedleItem(Source source = Source::Value, Shape shape = Shape::Needle);
    QcNeedleItem(Source source, Shape shape, double radius);

    [[nodiscard]] Source source() const { return m_source; }
    [[nodiscard]] Shape shape() const { return m_shape; }

    /// For Source::Own. A value that is not finite counts as none.
    void setOwnValue(double value);
    /// Invalid: the theme's.
    void setColor(const QColor &color);
    [[nodiscard]] QColor color() const { return m_color; }
    [[nodiscard]] double hubRadius() const { return m_hub; }
    /// In percent; of a needle.
    void setHubRadius(double percent);

    /// Degrees clockwise from the top. A needle without a value is parked just before the scale.
    [[nodiscard]] double angle(const QcCanvas &canvas, const QcReading &reading) const;

    [[nodiscard]] bool isMoving() const override { return true; }
    [[nodiscard]] bool looksDifferent(const QcCanvas &canvas, const QcReading &before,
                                      const QcReading &after) const override;
    [[nodiscard]] QRectF area(const QcCanvas &canvas, const QcReading &reading) const override;
    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    struct Target
    {
        bool valid = false;
        double value = 0.0;
    };
    [[nodiscard]] Target target(const QcReading &reading) const;
    [[nodiscard]] QPolygonF outline(const QcCanvas &canvas, const QcReading &reading) const;
    [[nodiscard]] QColor shownColor(const QcCanvas &canvas, const QcReading &reading) const;
    void paintNeedle(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const;

    Source m_source;
    Shape m_shape;
    QColor m_color;
    double m_hub = 7.0;
    double m_ownValue;
};
