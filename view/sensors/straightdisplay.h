#pragma once

#include "view/sensors/sensordisplay.h"
#include "view/sensors/straightscale.h"

/// What the displays with a straight scale have in common: where the scale is and how large its parts are.
class StraightDisplay : public SensorDisplay
{
    Q_OBJECT

public:
    using SensorDisplay::SensorDisplay;

protected:
    [[nodiscard]] Places places() const override;
    [[nodiscard]] bool isUpright() const;
    [[nodiscard]] QFont labelFont(const QRectF &area) const;
    /// The length in pixels that all lengths across the scale are multiples of.
    [[nodiscard]] double unitOf(const QRectF &area) const;
    [[nodiscard]] StraightScale scaleIn(const QRectF &area) const;
    void paintHeld(QPainter &painter, const StraightScale &scale, double begin, double end) const;
};
