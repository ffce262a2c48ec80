#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class LineQueue;

/// Measures the time in which lines of the box could have been handled: not while they are held, and not while the
/// event loop is blocked. Silence in between says nothing about the box.
class LinkClock : public QObject
{
    Q_OBJECT

public:
    /// The lines must outlive the clock. `interval` in ms.
    LinkClock(const LineQueue &lines, int interval);

    void start();
    void stop() { m_timer.stop(); }

signals:
    /// So many ms have passed since the last tick; never more than twice the interval.
    void ticked(int milliseconds);

private:
    void tick();

    const LineQueue &m_lines;
    QTimer m_timer;
    QElapsedTimer m_sinceTick;
};
