#pragma once

#include "kit/gauge/qcitem.h"

/// A line of text: a fixed one, or a text or the value of the gauge. The radius is the distance of its middle from the
/// centre of the gauge, in the direction of an angle.
class QcLabelItem : public QcItem
{
public:
    enum class Source { Text, Title, Unit, Value };

    explicit QcLabelItem(Source source, double radius = 0.0, double angle = 180.0);

    [[nodiscard]] QString text() const { return m_text; }
    /// For Source::Text.
    void setText(const QString &text);
    /// Degrees clockwise from the top; ignored if not finite.
    void setAngle(double angle);
    /// Height of the font in percent.
    void setSize(double percent);
    /// The room for the text in percent. A value that does not fit gets a smaller font and fewer decimals, other texts
    /// are cut.
    void setWidth(double percent);
    /// Left out where the gauge is so small that a readable font would be far too large for it.
    void setOptional(bool optional);
    void setWeight(QFont::Weight weight);
    /// Invalid: the theme's.
    void setColor(const QColor &color);

    [[nodiscard]] bool isMoving() const override { return m_source == Source::Value; }
    [[nodiscard]] bool looksDifferent(const QcCanvas &canvas, const QcReading &before,
                                      const QcReading &after) const override;
    [[nodiscard]] QRectF area(const QcCanvas &canvas, const QcReading &reading) const override;
    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    [[nodiscard]] QString shownText(const QcCanvas &canvas, const QcReading &reading) const;
    [[nodiscard]] QFont fittingFont(const QcCanvas &canvas, const QString &text) const;
    [[nodiscard]] QColor shownColor(const QcCanvas &canvas, const QcReading &reading) const;

    Source m_source;
    QString m_text;
    QColor m_color;
    double m_angle;
    double m_size = 10.0;
    double m_width = 80.0;
    QFont::Weight m_weight = QFont::Normal;
    bool m_optional = false;
};
