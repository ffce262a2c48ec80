#include "controller/link/answerwatch.h"

std::optional<MessageKind> expectedAnswer(const QString &command)
{
    const QString text = command.trimmed();
    if (text == QLatin1String("run=1"))
        return MessageKind::RunStarted;
    if (text == QLatin1String("run=0"))
        return MessageKind::RunStopped;
    if (text.startsWith(QLatin1String("t=")))
        return MessageKind::ClockEcho;
    if (text == QLatin1String("1"))
        return MessageKind::Sample;
    if (text == QLatin1String("list"))
        return MessageKind::ListBegin;
    return std::nullopt;
}

void AnswerWatch::reset()
{
    m_waiting.fill({});
    m_numWaiting = 0;
    m_isMute = false;
}

void AnswerWatch::noteSent(const QString &text)
{
    const std::optional<MessageKind> kind = expectedAnswer(text);
    if (!kind)
        return;
    Waiting &waiting = m_waiting.at(static_cast<std::size_t>(*kind));
    if (waiting.command.isEmpty())
        ++m_numWaiting;
    waiting = {text.trimmed(), 0};
}

void AnswerWatch::noteLine(MessageKind kind)
{
    m_isMute = false;
    if (m_numWaiting == 0)
        return;
    Waiting &waiting = m_waiting.at(static_cast<std::size_t>(kind));
    if (waiting.command.isEmpty())
        return;
    waiting = {};
    --m_numWaiting;
}

void AnswerWatch::advance(int milliseconds)
{
    QString missed;
    for (Waiting &waiting : m_waiting) {
        if (waiting.command.isEmpty())
            continue;
        waiting.time += milliseconds;
        if (waiting.time < m_wait)
            continue;
        missed = waiting.command;
        waiting = {};
        --m_numWaiting;
    }
    if (missed.isEmpty())
        return;
    m_isMute = true;
    emit unanswered(missed);
}
