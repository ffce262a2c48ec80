#pragma once

#include "view/sensors/straightdisplay.h"

/// A scale with a pointer.
class LinearDisplay : public StraightDisplay
{
    Q_OBJECT

public:
    using StraightDisplay::StraightDisplay;

protected:
    void paintFigure(QPainter &painter, const QRectF &area) const override;
    void paintPointer(QPainter &painter, const QRectF &area) const override;
};
