#pragma once

#include "view/sensors/sensordisplay.h"

/// Digits as large as there is room for, above a strip that shows where the value lies.
class DigitalDisplay : public SensorDisplay
{
    Q_OBJECT

public:
    using SensorDisplay::SensorDisplay;

protected:
    [[nodiscard]] Places places() const override;
    void paintFigure(QPainter &painter, const QRectF &area) const override;
    void paintPointer(QPainter &painter, const QRectF &area) const override;
};
