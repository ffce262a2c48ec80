#pragma once

#include "view/sensors/sensordisplay.h"
#include "view/sensors/straightscale.h"

class QcGaugeWidget;
class QcNeedleItem;

/// What the displays with a straight scale have in common.
class StraightDisplay : public SensorDisplay
{
    Q_OBJECT

public:
    using SensorDisplay::SensorDisplay;

protected:
    [[nodiscard]] Places places() const override;
    [[nodiscard]] bool isUpright() const;
    [[nodiscard]] QFont labelFont(const QRectF &area) const;
    /// The length that all parts across the scale are made from.
    [[nodiscard]] double unitOf(const QRectF &area) const;
    [[nodiscard]] StraightScale scaleIn(const QRectF &area) const;
    void paintHeld(QPainter &painter, const StraightScale &scale, double begin, double end) const;
};

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
