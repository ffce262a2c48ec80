#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QVector>

class QWidget;

/// A few numbers that move smoothly to their targets, for one widget, which is repainted at every step. All share one
/// timer, which runs only while something visible moves: on a hidden widget, and if the widget's style wants no
/// animations, every number jumps to its target; hiding the widget ends every movement.
class QtMaterialMotion : public QObject
{
    Q_OBJECT

public:
    /// The widget becomes the parent. All numbers start at 0.
    QtMaterialMotion(QWidget *widget, int count);

    [[nodiscard]] qreal value(int index) const { return m_tracks.at(index).value; }
    [[nodiscard]] qreal target(int index) const { return m_tracks.at(index).to; }
    [[nodiscard]] bool isRunning() const { return m_timer.isActive(); }

    /// Starts from the current value. Does nothing if the number is already moving there.
    void moveTo(int index, qreal target, int milliseconds);
    void jumpTo(int index, qreal value);
    /// Moves every number to its target at once.
    void finish();

signals:
    /// Values have changed.
    void stepped();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    struct Track
    {
        qreal value = 0.0;
        qreal from = 0.0;
        qreal to = 0.0;
        qint64 begin = 0; ///< ms of the clock
        int duration = 0; ///< ms; 0: at rest
    };

    [[nodiscard]] bool canAnimate() const;
    void step(Track &track, qint64 now) const;
    void stopIfAtRest();

    QWidget *const m_widget;
    QVector<Track> m_tracks;
    QElapsedTimer m_clock;
    QBasicTimer m_timer;
};
