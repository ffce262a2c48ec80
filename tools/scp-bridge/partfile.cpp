#include "tools/scp-bridge/partfile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kMode = 0666; // what the user's mask leaves of it

} // namespace

PartFile::PartFile(const QByteArray &folder, const QByteArray &name, quint64 size, quint32 modified)
    : m_folder(folder)
    , m_name(name)
    , m_size(size)
    , m_modified(modified)
{}

PartFile::~PartFile()
{
    if (m_file >= 0)
        ::close(m_file);
}

bool PartFile::isComplete() const
{
    struct stat found;
    return ::lstat(path(m_name).constData(), &found) == 0 && S_ISREG(found.st_mode)
           && static_cast<quint64>(found.st_size) == m_size && found.st_mtim.tv_sec == static_cast<time_t>(m_modified);
}

QByteArray PartFile::partName() const
{
    return m_name + '.' + QByteArray::number(m_modified) + '-' + QByteArray::number(m_size) + ".part";
}

bool PartFile::open()
{
    m_file = ::open(path(partName()).constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kMode);
    struct stat found;
    if (m_file < 0 || ::fstat(m_file, &found) != 0)
        return false;
    if (!S_ISREG(found.st_mode)) {
        errno = EEXIST;
        return false;
    }
    const auto there = static_cast<quint64>(found.st_size);
    m_written = there <= m_size ? there : 0;
    return there <= m_size || ::ftruncate(m_file, 0) == 0;
}

bool PartFile::append(const QByteArray &bytes)
{
    int done = 0;
    while (done < bytes.size()) {
        const ssize_t written = ::pwrite(m_file, bytes.constData() + done, static_cast<size_t>(bytes.size() - done),
                                         static_cast<off_t>(m_written));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        done += static_cast<int>(written);
        m_written += static_cast<quint64>(written);
    }
    return true;
}

bool PartFile::finish()
{
    const timespec time{static_cast<time_t>(m_modified), 0};
    const timespec times[]{time, time};
    const bool isTimed = ::futimens(m_file, times) == 0;
    const bool isClosed = ::close(m_file) == 0; // a full disk may show here only
    m_file = -1;
    return isTimed && isClosed && ::rename(path(partName()).constData(), path(m_name).constData()) == 0;
}
