#pragma once

#include <QWidget>

class OsziWidget;
class QScrollBar;

/// A plot with a scroll bar for the time, as long as its curves are longer than it is wide, and with the mouse
/// read-out.
class ScrolledPlot : public QWidget
{
    Q_OBJECT

public:
    /// Takes the plot over as a child.
    explicit ScrolledPlot(OsziWidget *plot, QWidget *parent = nullptr);

    /// Lets so many samples fill the width, within what can be told apart; 0: none yet.
    void setLongest(int samples);
    /// Does nothing if the range is the same already: every change draws all curves anew.
    void setValueRange(double minimum, double maximum);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitTimeAxis();

    OsziWidget *m_plot;
    QScrollBar *m_scrollBar;
    int m_longest = 0;
};
