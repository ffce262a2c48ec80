#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Knows whether the user is typing into a field, so that nothing that he has not asked for takes the keys away.
class TypingWatch : public QObject
{
    Q_OBJECT

public:
    /// `pause`: how long after the last key the user counts as typing, in ms; 0 for never.
    explicit TypingWatch(int pause);
    ~TypingWatch() override;

    [[nodiscard]] bool isTyping() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QElapsedTimer m_sinceKey;
    int m_pause;
};
