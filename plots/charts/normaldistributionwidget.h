#pragma once

#include "plots/charts/statistics.h"

#include <QColor>
#include <QMargins>
#include <QWidget>

/// The bell curve of a list of numbers, from mean - 3 sigma to mean + 3 sigma.
class NormalDistributionWidget : public QWidget
{
    Q_OBJECT

public:
    explicit NormalDistributionWidget(QWidget *parent = nullptr);

    /// Numbers that are not finite are ignored. Where all are equal the curve is a single upright line.
    void set(QList<double> values);
    /// Pixels around the plot, in the order of QMargins; negative ones count as 0.
    void setMargins(int left, int top, int right, int bottom);
    void setCurveColor(const QColor &color);

    [[nodiscard]] double mean() const { return m_moments.mean; }
    [[nodiscard]] double sigma() const { return m_moments.sigma; }
    [[nodiscard]] QColor curveColor() const { return m_curveColor; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    statistics::Moments m_moments;
    bool m_hasValues = false;
    QMargins m_margins{60, 14, 24, 22};
    QColor m_curveColor;
};
