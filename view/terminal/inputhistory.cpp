#include "view/terminal/inputhistory.h"

void InputHistory::add(const QString &line)
{
    if (!line.isEmpty() && (m_lines.isEmpty() || m_lines.constLast() != line))
        m_lines.append(line);
    while (m_lines.size() > kMaximum)
        m_lines.removeFirst();
    m_position = m_lines.size();
    m_typed.clear();
}

QString InputHistory::previous(const QString &typed)
{
    if (m_lines.isEmpty())
        return typed;
    if (m_position == m_lines.size())
        m_typed = typed;
    if (m_position > 0)
        --m_position;
    return m_lines.at(m_position);
}

QString InputHistory::next(const QString &typed)
{
    if (m_position >= m_lines.size())
        return typed;
    ++m_position;
    return m_position == m_lines.size() ? m_typed : m_lines.at(m_position);
}
