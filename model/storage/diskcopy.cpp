#include "model/storage/diskcopy.h"

void DiskCopy::note(const QString &fileName, const FileStamp &stamp)
{
    m_fileName = fileName;
    m_stamp = stamp;
}

FileStamp DiskCopy::stamp(const QString &fileName) const
{
    return fileName == m_fileName ? m_stamp : FileStamp();
}

DiskCopy::State DiskCopy::state(const QString &fileName, const std::function<void()> &pause)
{
    const FileStamp now = stampOf(fileName);
    if (!now.isThere())
        return State::Gone;
    if (fileName != m_fileName || now.size != m_stamp.size)
        return State::Changed;
    if (now.looksLike(m_stamp))
        return State::Same;
    if (m_stamp.hash.isEmpty() || hashOf(fileName, pause) != m_stamp.hash)
        return State::Changed;
    m_stamp.modified = now.modified; // touched, or copied away and back
    return State::Same;
}
