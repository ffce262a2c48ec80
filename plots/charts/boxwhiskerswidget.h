#pragma once

#include "plots/charts/boxplot.h"

#include <QColor>
#include <QWidget>

/// A box-and-whisker plot of a list of numbers against a fixed axis.
class BoxWhiskersWidget : public QWidget
{
    Q_OBJECT

public:
    explicit BoxWhiskersWidget(QWidget *parent = nullptr);

    /// Copies and sorts the list; numbers that are not finite are ignored. An empty list is drawn as a box
    /// collapsed at 0.
    void set(QList<double> values);
    /// Ends that are not finite are ignored; reversed ends are swapped.
    void setAxisRange(double minimum, double maximum);
    /// Pixels around the plot area, in the order of QMargins. Labels are drawn in the bottom margin, those
    /// of a vertical plot in the right one. Negative ones count as 0.
    void setMargins(int left, int top, int right, int bottom);
    void setFillColor(const QColor &color);
    /// False: the value axis runs left to right; true: it runs bottom to top.
    void setVertical(bool vertical);

    [[nodiscard]] const QVector<double> &sortedValues() const { return m_sorted; }
    [[nodiscard]] const statistics::FiveNumbers &numbers() const { return m_numbers; }
    [[nodiscard]] double axisMinimum() const { return m_axisMinimum; }
    [[nodiscard]] double axisMaximum() const { return m_axisMaximum; }
    [[nodiscard]] QColor fillColor() const { return m_fillColor; }
    [[nodiscard]] bool isVertical() const { return m_vertical; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] BoxPlotGeometry geometryOfPlot() const;

    QVector<double> m_sorted;
    statistics::FiveNumbers m_numbers;
    double m_axisMinimum = 0.0;
    double m_axisMaximum = 1.0;
    QMargins m_margins{20, 0, 10, 20};
    QColor m_fillColor{Qt::gray};
    bool m_vertical = false;
};
