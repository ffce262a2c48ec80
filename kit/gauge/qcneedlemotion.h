#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// Lets a needle follow its value slowly: the rest of the way shrinks by the same share in the same time. Its timer
/// runs only while a needle is on its way.
class QcNeedleMotion : public QObject
{
    Q_OBJECT

public:
    explicit QcNeedleMotion(QObject *parent = nullptr);

    [[nodiscard]] bool isDamped() const { return m_damping > 0; }
    /// The time in ms in which a needle covers about two thirds of its way. Negative values count as 0, the default:
    /// the next frame is the last one.
    void setDamping(int milliseconds);
    [[nodiscard]] bool isRunning() const { return m_timer.isActive(); }
    /// Starts the frames unless they are running.
    void start();
    void stop();
    /// Where the needle is to be shown in this frame, on its way from where it is shown to the value. Both are
    /// taken as at most a little outside the range, so that the way there is not endless. Returns the value itself and
    /// stops once the needle has arrived.
    [[nodiscard]] double advance(double shown, double value, double minimum, double maximum);

signals:
    /// It is time for advance().
    void frame();

private:
    int m_damping = 0; ///< ms
    QTimer m_timer;
    QElapsedTimer m_sinceFrame;
};
