#pragma once

#include <QAbstractSocket>
#include <QElapsedTimer>
#include <QTimer>

/// Knows whether the box was told to restart and may be expected to refuse connections. While it may, retry() asks for
/// the next attempt a second after each one that failed.
class BoxRestart : public QObject
{
    Q_OBJECT

public:
    BoxRestart();

    /// The box has been told to restart.
    void begin() { m_since.start(); }
    /// It is back, or nobody waits for it any longer.
    void end() { m_since.invalidate(); }
    /// True if the error only says that the box is not back yet.
    [[nodiscard]] bool explains(QAbstractSocket::SocketError error) const;
    void retryLater() { m_retryTimer.start(); }

signals:
    void retry();

private:
    QElapsedTimer m_since; // invalid: no restart is waited for
    QTimer m_retryTimer;
};
