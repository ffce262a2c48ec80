#pragma once

#include "view/sensors/sensordisplay.h"

class QcGaugeWidget;
class QcNeedleItem;

/// A gauge with a needle; the digits beside or below it.
class RoundDisplay : public SensorDisplay
{
    Q_OBJECT

public:
    explicit RoundDisplay(QWidget *parent = nullptr);

protected:
    [[nodiscard]] Places places() const override;
    void paintFigure(QPainter & /*painter*/, const QRectF & /*area*/) const override {}
    void paintPointer(QPainter & /*painter*/, const QRectF & /*area*/) const override {}
    void follow(bool isFace) override;

private:
    void followFace();
    void followReading();

    QcGaugeWidget *m_gauge;
    QcNeedleItem *m_needle; ///< the gauge's
};
