#pragma once

#include "kit/gauge/qcitem.h"

/// The glass above the other parts: a faint shadow towards the rim and a gloss at the top. The radius is that of its
/// edge.
class QcGlassItem : public QcItem
{
public:
    explicit QcGlassItem(double radius = 97.4);

    void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const override;
};
