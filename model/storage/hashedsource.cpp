#include "model/storage/hashedsource.h"

#include <array>

HashedSource::HashedSource(QIODevice &file)
    : m_file(file)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 HashedSource::readData(char *data, qint64 size)
{
    const qint64 count = m_file.read(data, size);
    if (count > 0)
        m_hash.addData(data, static_cast<int>(count));
    m_hasFailed = m_hasFailed || count < 0;
    return count;
}

bool HashedSource::skipPart()
{
    std::array<char, 65536> part;
    return readData(part.data(), part.size()) > 0;
}

QByteArray HashedSource::hash()
{
    while (skipPart()) {
    }
    return m_hasFailed ? QByteArray() : m_hash.result();
}
