#include "model/journal/journalfile.h"

#include "model/journal/journalblock.h"

#include <QFileInfo>

#include <cerrno>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif
#ifdef Q_OS_WIN
#include <io.h>
#endif

namespace {

bool syncFile(int descriptor)
{
#if defined(Q_OS_LINUX)
    return ::fdatasync(descriptor) == 0;
#elif defined(Q_OS_UNIX)
    return ::fsync(descriptor) == 0;
#elif defined(Q_OS_WIN)
    return ::_commit(descriptor) == 0;
#endif
}

// A new file is found after a power cut only if its folder was written too.
void syncFolder(const QString &folder)
{
#ifdef Q_OS_UNIX
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    (void)::fsync(descriptor); // some file systems refuse this; there is nothing else to try
    ::close(descriptor);
#else
    Q_UNUSED(folder)
#endif
}

// A write that falls short gives no reason; the next one does.
bool writeAll(QFile &file, const QByteArray &bytes)
{
    for (qint64 done = 0; done < bytes.size();) {
        const qint64 part = file.write(bytes.constData() + done, bytes.size() - done);
        if (part <= 0)
            return false;
        done += part;
    }
    return true;
}

JournalFault::Kind kindOf(QFileDevice::FileError error, int number)
{
    if (error == QFileDevice::ResourceError || number == ENOSPC)
        return JournalFault::Kind::NoSpace;
    if (error == QFileDevice::PermissionsError || number == EACCES || number == EROFS || number == EPERM)
        return JournalFault::Kind::NotAllowed;
    return JournalFault::Kind::Other;
}

} // namespace

JournalFile::JournalFile(const QString &fileName)
    : m_file(fileName)
{
    errno = 0;
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        noteFault();
        return;
    }
    // The project may be confidential, whatever the umask.
    (void)m_file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    m_usable = true;
    m_usable = append({journalblock::mark()});
    if (m_usable)
        syncFolder(QFileInfo(fileName).absolutePath());
}

JournalFile::~JournalFile() = default;

void JournalFile::noteFault()
{
    m_fault = {kindOf(m_file.error(), errno), m_file.errorString()};
}

bool JournalFile::append(const std::vector<QByteArray> &blocks)
{
    if (!m_usable)
        return false;
    qint64 size = m_size;
    for (const QByteArray &block : blocks) {
        errno = 0;
        if (!writeAll(m_file, block)) {
            noteFault();
            // Or what is appended later would stand behind a torn block.
            m_usable = m_file.resize(m_size) && m_file.seek(m_size);
            return false;
        }
        size += block.size();
    }
    m_size = size;
    return true;
}

bool JournalFile::force()
{
    errno = 0;
    if (syncFile(m_file.handle()))
        return true;
    m_fault = {kindOf(QFileDevice::NoError, errno), qt_error_string(errno)};
    return false;
}

void JournalFile::remove()
{
    m_file.remove();
}
