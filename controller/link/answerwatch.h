#pragma once

#include "device/protocol/messages.h"

#include <QObject>
#include <QString>

#include <array>
#include <optional>

/// The kind of line with which a box answers a command, given with or without its line feed; nothing for a command
/// that needs no answer.
[[nodiscard]] std::optional<MessageKind> expectedAnswer(const QString &command);

/// Waits for the answers to the commands that were sent, and reports one that did not come.
class AnswerWatch : public QObject
{
    Q_OBJECT

public:
    /// `wait`: for each answer, in ms.
    explicit AnswerWatch(int wait)
        : m_wait(wait)
    {}

    /// Nothing is waited for any longer.
    void reset();
    /// Text that was sent to the box.
    void noteSent(const QString &text);
    /// A line of the box. Cheap enough for every line.
    void noteLine(MessageKind kind);
    void advance(int milliseconds);

    /// True from an answer that did not come to the next line of any kind.
    [[nodiscard]] bool isBoxMute() const { return m_isMute; }

signals:
    /// No answer came to this command.
    void unanswered(const QString &command);

private:
    static constexpr auto kNumKinds = static_cast<std::size_t>(MessageKind::Other) + 1;
    struct Waiting
    {
        QString command; // empty: nothing is waited for
        int time = 0;
    };

    int m_wait;
    std::array<Waiting, kNumKinds> m_waiting;
    int m_numWaiting = 0;
    bool m_isMute = false;
};
