#include "model/storage/replacedfile.h"

#ifdef Q_OS_LINUX

#include <QFile>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr off_t kStep = off_t(4) * 1024 * 1024;

/// True if the file has no other name and is not open anywhere else, in which case a lease would be refused.
bool isOnlyHere(int handle, const struct stat &file)
{
    return S_ISREG(file.st_mode) && file.st_nlink == 0 && ::fcntl(handle, F_SETLEASE, F_WRLCK) == 0
           && ::fcntl(handle, F_SETLEASE, F_UNLCK) == 0;
}

} // namespace

ReplacedFile::ReplacedFile(const QString &fileName)
    : m_handle(::open(QFile::encodeName(fileName).constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK))
{}

ReplacedFile::~ReplacedFile()
{
    if (m_handle >= 0)
        ::close(m_handle);
}

void ReplacedFile::free(const std::function<void()> &pause) const
{
    struct stat file = {};
    if (m_handle < 0 || ::fstat(m_handle, &file) != 0 || !isOnlyHere(m_handle, file))
        return;
    for (off_t size = file.st_size; size > 0;) {
        size = std::max<off_t>(size - kStep, 0);
        if (::ftruncate(m_handle, size) != 0)
            return;
        pause();
    }
}

#else

ReplacedFile::ReplacedFile(const QString &) {}
ReplacedFile::~ReplacedFile() = default;
void ReplacedFile::free(const std::function<void()> &) const {}

#endif
