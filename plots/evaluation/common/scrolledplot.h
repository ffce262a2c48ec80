#pragma once

#include <QWidget>

class OsziWidget;
class QScrollBar;

/// A plot with the mouse read-out and with a scroll bar for the time, which is visible while the curves are longer than
/// the plot is wide.
class ScrolledPlot : public QWidget
{
    Q_OBJECT

public:
    /// Makes the plot its child.
    explicit ScrolledPlot(OsziWidget *plot, QWidget *parent = nullptr);

    /// Fits the time axis so that this number of samples fills the width, as far as single samples stay visible; 0:
    /// there are no samples yet.
    void setLongest(int samples);
    /// Does nothing if the range is the same already: every change draws all curves again.
    void setValueRange(double minimum, double maximum);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitTimeAxis();

    OsziWidget *m_plot;
    QScrollBar *m_scrollBar;
    int m_longest = 0;
};
