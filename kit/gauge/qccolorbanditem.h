#pragma once

#include "kit/gauge/qcitem.h"

/// The gauge's bands, in their order, along the scale. The radius is that of their outer edge.
class QcColorBandItem : public QcItem
{
public:
    explicit QcColorBandItem(double radius = 92.0);

    [[nodiscard]] double width() const { return m_width; }
    /// In percent.
    void setWidth(double percent);

    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;

private:
    double m_width = 6.0;
};
