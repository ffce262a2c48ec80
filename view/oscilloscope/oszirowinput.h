#pragma once

#include <QObject>
#include <QPoint>

class OsziWidget;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

/// Turns wheel, drags, double clicks and keys over a plot into signals that say what they mean. A drag without a
/// modifier key is left to the plot, which shows its read-out.
class OsziRowInput : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the plot.
    explicit OsziRowInput(OsziWidget *plot);

signals:
    /// Steps of the wheel at a column / at a line of the plot; positive zooms in.
    void timeZoomed(int x, int steps);
    void valueZoomed(int y, int steps);
    /// A drag begins; then the distance from its origin in pixels, along one of the axes only.
    void dragStarted();
    void timeDragged(int pixels);
    void valueDragged(int pixels);
    /// Arrow keys: tenths of what is visible; positive is later / up.
    void timeStepped(int tenths);
    void valueStepped(int tenths);
    void jumpedToStart();
    void jumpedToEnd();
    void fitRequested();
    void cancelled();
    /// Ctrl and an arrow key: samples by which the read-out moves; positive is later. It ends when
    /// Ctrl is released or the plot loses the focus.
    void readOutStepped(int samples);
    void readOutEnded();
    void plotResized();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Drag { None, Undecided, Time, Value };

    bool wheel(const QWheelEvent &event);
    bool press(const QMouseEvent &event);
    bool move(const QMouseEvent &event);
    bool release(const QMouseEvent &event);
    bool key(const QKeyEvent &event);
    bool zoomKey(const QKeyEvent &event);
    bool readOutKey(const QKeyEvent &event);

    OsziWidget *m_plot;
    Drag m_drag = Drag::None;
    Qt::MouseButton m_button = Qt::NoButton;
    QPoint m_dragOrigin;
    int m_wheelRest = 0;
};
