#include "model/project/atomicfile.h"

#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#endif

namespace {

/// Brings what is written to the disk bit by bit. All at once at the end would take so long that the window would
/// freeze.
class SteadyFile : public QSaveFile
{
public:
    using QSaveFile::QSaveFile;

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        const qint64 written = QSaveFile::writeData(data, size);
        m_waiting += written;
        if (m_waiting < kMostWaiting)
            return written;
        m_waiting = 0;
        return bringToDisk() ? written : -1;
    }

private:
    static constexpr qint64 kMostWaiting = qint64(1024) * 1024;

    [[nodiscard]] bool bringToDisk()
    {
#ifdef Q_OS_LINUX
        return flush() && fdatasync(handle()) == 0;
#else
        return true;
#endif
    }

    qint64 m_waiting = 0;
};

/// Holds on to a file that is about to be replaced. Freeing a large one takes the system so long that the window would
/// freeze; so its space is given back bit by bit.
class ReplacedFile
{
public:
#ifdef Q_OS_LINUX
    explicit ReplacedFile(const QString &fileName)
        : m_handle(::open(QFile::encodeName(fileName).constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK))
    {}
    ~ReplacedFile()
    {
        if (m_handle >= 0)
            ::close(m_handle);
    }
    void free(const std::function<void()> &pause) const
    {
        struct stat file = {};
        if (m_handle < 0 || ::fstat(m_handle, &file) != 0 || !isOnlyHere(file))
            return;
        for (off_t size = file.st_size; size > 0;) {
            size = std::max<off_t>(size - kStep, 0);
            if (::ftruncate(m_handle, size) != 0)
                return;
            pause();
        }
    }

private:
    static constexpr off_t kStep = off_t(4) * 1024 * 1024;

    /// True if the file has no other name and is not open anywhere else, in which case a lease would be refused.
    [[nodiscard]] bool isOnlyHere(const struct stat &file) const
    {
        return S_ISREG(file.st_mode) && file.st_nlink == 0 && ::fcntl(m_handle, F_SETLEASE, F_WRLCK) == 0
               && ::fcntl(m_handle, F_SETLEASE, F_UNLCK) == 0;
    }

    int m_handle;
#else
    explicit ReplacedFile(const QString &) {}
    void free(const std::function<void()> &) const {}
#endif
    Q_DISABLE_COPY_MOVE(ReplacedFile)
};

} // namespace

bool replaceFile(const QString &fileName, const std::function<bool(QIODevice &target)> &write,
                 const std::function<void()> &pause)
{
    const QFileInfo existing(fileName);
    if (existing.exists() && !existing.isFile())
        return false; // renaming over a device or a pipe would remove it
    SteadyFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    // commit() alone does not notice a write that fell short.
    if (!write(file) || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    const ReplacedFile old(fileName);
    if (!file.commit())
        return false;
    old.free(pause);
    return true;
}
