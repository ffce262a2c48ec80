#pragma once

#include <QObject>
#include <QTimer>

/// Bundles requests that come in quick succession: the first one starts the interval, due() is emitted once at its
/// end, and requests in between cost one comparison.
class Throttle : public QObject
{
    Q_OBJECT

public:
    /// The interval is in milliseconds; 0: the next turn of the event loop.
    explicit Throttle(int interval, Qt::TimerType type = Qt::CoarseTimer, QObject *parent = nullptr);

    [[nodiscard]] bool isPending() const { return m_timer.isActive(); }
    [[nodiscard]] int interval() const { return m_interval; }
    /// Applies from the next request on; a pending one keeps its time.
    void setInterval(int milliseconds);

    /// Has due() emitted at the end of the interval, unless that is about to happen anyway.
    void request()
    {
        if (!m_timer.isActive())
            start();
    }
    /// Drops a pending request.
    void cancel() { m_timer.stop(); }
    /// Emits due() at once if a request is pending.
    void flush();

signals:
    /// There was at least one request.
    void due();

private:
    void start();

    QTimer m_timer;
    int m_interval;
};
