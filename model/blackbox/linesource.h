#pragma once

#include <QByteArray>

#include <array>

class QIODevice;

/// The lines of a device, without their ends. Lines may be as long as they like without costing memory.
class LineSource
{
public:
    /// Looks at no more than `maxBytes`. The device must outlive this.
    LineSource(QIODevice &source, qint64 maxBytes);

    /// A whole line, the beginning of an overlong one, more of that one, or the end of the device.
    enum class Part { Line, Overlong, Rest, End };

    /// Reads a line, or as much of an overlong one as fits into the buffer; the next calls give the rest of it.
    [[nodiscard]] Part next();

    /// Valid until the next call of next().
    [[nodiscard]] QByteArray line() const { return QByteArray::fromRawData(m_buffer.data(), m_size); }
    [[nodiscard]] qint64 bytesRead() const { return m_bytesRead; }

    static constexpr int kMaxLine = 4096; ///< bytes, with the end of the line; the box writes no longer ones

private:
    QIODevice &m_source;
    qint64 m_maxBytes;
    qint64 m_bytesRead = 0;
    std::array<char, kMaxLine + 1> m_buffer; // and a terminator
    int m_size = 0;
    bool m_open = false; ///< the last line goes on behind the buffer
};
