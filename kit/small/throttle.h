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
    /// From the next request on; one that is pending keeps its time.
    void setInterval(int milliseconds);

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
    void due();

private:
    void start();

    QTimer m_timer;
    int m_interval;
};
