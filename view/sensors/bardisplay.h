#pragma once

#include "view/sensors/straightdisplay.h"

/// A bar that begins at zero, or at the end of the scale that is nearer to it.
class BarDisplay : public StraightDisplay
{
    Q_OBJECT

public:
    using StraightDisplay::StraightDisplay;

protected:
    void paintFigure(QPainter &painter, const QRectF &area) const override;
    void paintPointer(QPainter &painter, const QRectF &area) const override;
};
