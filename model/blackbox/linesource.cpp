#include "model/blackbox/linesource.h"

#include "model/arrayindex.h"

#include <QIODevice>

LineSource::LineSource(QIODevice &source, qint64 maxBytes)
    : m_source(source)
    , m_maxBytes(maxBytes)
{}

LineSource::Part LineSource::next()
{
    const bool continues = m_open;
    const qint64 size = m_bytesRead < m_maxBytes ? m_source.readLine(m_buffer.data(), kMaxLine + 1) : 0;
    if (size <= 0)
        return Part::End;
    m_bytesRead += size;
    m_size = static_cast<int>(size);
    m_open = m_size == kMaxLine && m_buffer[kMaxLine - 1] != '\n';
    // Files that went through other systems end their lines with a carriage return as well.
    while (m_size > 0 && (m_buffer[at(m_size - 1)] == '\n' || m_buffer[at(m_size - 1)] == '\r'))
        --m_size;
    if (continues)
        return Part::Rest;
    return m_open ? Part::Overlong : Part::Line;
}
