#pragma once

#include <QAbstractSocket>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>
#include <vector>

/// Tries again and again after a link was lost, until it is back or the user gives up. Knows when, not how.
class Reconnect : public QObject
{
    Q_OBJECT

public:
    /// `delays`: ms before each attempt; the last one repeats. At least one.
    explicit Reconnect(std::vector<int> delays);

    /// The link to this box was lost. The first attempt follows after the first delay; after a link that was not worth
    /// its name, attempts go on as before.
    void begin(const QString &address);
    /// There is a link again, but whoever took it has not said a word yet.
    void noteLink();
    /// The box is back.
    void noteBack();
    /// Nobody waits for the box any longer.
    void end();
    /// While held, attempts are put off: another part uses the connector.
    void setHeld(bool held) { m_isHeld = held; }

    [[nodiscard]] bool isActive() const { return m_timer.isActive(); }
    /// True while there is a link that is not worth its name yet.
    [[nodiscard]] bool isLinkUnproven() const { return m_isLinkUnproven; }
    [[nodiscard]] QString address() const { return m_address; }
    /// Number of attempts so far.
    [[nodiscard]] int attempts() const { return m_attempts; }
    /// Milliseconds until the next one.
    [[nodiscard]] int timeToNext() const { return m_timer.remainingTime(); }
    /// True once per loss: the user is told once.
    [[nodiscard]] bool takeReport();
    void noteError(QAbstractSocket::SocketError error) { m_error = error; }
    /// Of the loss, then of the last attempt.
    [[nodiscard]] std::optional<QAbstractSocket::SocketError> lastError() const { return m_error; }

signals:
    void attemptDue();

private:
    void schedule();
    void onTimeout();

    std::vector<int> m_delays;
    QTimer m_timer; // runs while active
    QString m_address;
    std::optional<QAbstractSocket::SocketError> m_error;
    int m_attempts = 0;
    bool m_isReported = false;
    bool m_isLinkUnproven = false;
    bool m_isHeld = false;
};
