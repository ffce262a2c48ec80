#pragma once

#include "kit/gauge/qcitem.h"

/// The numerals of the scale, upright, inside a circle of this radius. They neither overlap nor reach the middle: they
/// make the steps of the scale as wide as necessary. Long ones are shortened, for example to "150k", where there is no
/// room for them.
class QcValuesItem : public QcItem
{
public:
    explicit QcValuesItem(double radius = 73.5);

    [[nodiscard]] double size() const { return m_size; }
    /// Height of the font in percent.
    void setSize(double percent);

    [[nodiscard]] double neededStep(const QcCanvas &canvas) const override;
    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    struct Numeral
    {
        QString text;
        QRectF box;
    };
    [[nodiscard]] QFont font(const QcCanvas &canvas) const;
    struct Row
    {
        QVector<Numeral> numerals;
        bool crowded = false; ///< some are left out because there is no room between them
    };
    using TextOf = QString (*)(double value, double step, const QLocale &locale);
    [[nodiscard]] Row row(const QcCanvas &canvas, double step, TextOf textOf) const;
    /// Long numbers are shortened if that makes room.
    [[nodiscard]] Row bestRow(const QcCanvas &canvas, double step) const;

    double m_size = 12.0;
};
