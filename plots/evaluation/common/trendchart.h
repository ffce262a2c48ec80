#pragma once

#include "plots/evaluation/common/trendgeometry.h"

#include <QColor>
#include <QWidget>

/// One value per shot over the shots' numbers, with tolerance limits, mean, and the points outside in red.
class TrendChart : public QWidget
{
    Q_OBJECT

public:
    explicit TrendChart(QWidget *parent = nullptr);

    void set(const TrendValues &values, const ToleranceLimits &limits);
    void setColor(const QColor &color);
    /// The name of the values with their unit, shown above the plot.
    void setTitle(const QString &title);
    /// The shot that is marked; none if there is no such shot.
    void setChosenShot(int shot);
    [[nodiscard]] int chosenShot() const { return m_chosenShot; }
    [[nodiscard]] TrendGeometry geometryOfPlot() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The user clicked near a shot's point.
    void shotClicked(int shot);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    TrendValues m_values;
    ToleranceLimits m_limits;
    TrendRange m_range;
    QColor m_color{Qt::darkBlue};
    QString m_title;
    double m_mean = 0.0;
    bool m_hasValues = false;
    int m_chosenShot = -1;
};

/// Draws the values into a chart's area: a line with points, those outside the limits in red.
void drawTrend(QPainter &painter, const TrendGeometry &geometry, const TrendValues &values,
               const ToleranceLimits &limits, const QColor &color);
/// Draws the limits as dashed lines through the area.
void drawTrendLimits(QPainter &painter, const TrendGeometry &geometry, const ToleranceLimits &limits);
