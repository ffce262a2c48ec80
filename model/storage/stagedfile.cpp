#include "model/storage/stagedfile.h"

#include "model/storage/fileattributes.h"
#include "model/storage/hashedsource.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>

#include <cerrno>
#include <utility>

#ifdef Q_OS_LINUX

#include <array>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// Of a file that is whole already but has not got its name yet.
QByteArray passingName(const QByteArray &folder)
{
    return folder + "/.ventaro-" + QByteArray::number(QRandomGenerator::system()->generate64(), 16) + ".tmp";
}

/// Swaps the names of two files, where the file system can do that.
bool exchange(const QByteArray &one, const QByteArray &other)
{
    return ::syscall(SYS_renameat2, AT_FDCWD, one.constData(), AT_FDCWD, other.constData(), RENAME_EXCHANGE) == 0;
}

bool rename(const QByteArray &from, const QByteArray &to)
{
    return ::rename(from.constData(), to.constData()) == 0;
}

/// Gives a file a second name, which may belong to another one so far.
bool linkAs(const QByteArray &file, const QByteArray &name, const QByteArray &folder)
{
    const QByteArray passing = passingName(folder);
    if (::link(file.constData(), passing.constData()) != 0)
        return false;
    const bool done = rename(passing, name);
    const int error = errno;
    (void)::unlink(passing.constData()); // it is still there if both were names of the same file
    errno = error;
    return done;
}

} // namespace

/// Where the content is until it is put in place. Each function sets errno if it returns false.
class StagedFile::Place
{
public:
    Place(const QString &target, const QString &folder)
        : m_target(QFile::encodeName(target))
        , m_folder(QFile::encodeName(folder.isEmpty() ? QFileInfo(target).absolutePath() : folder))
        , m_mode(folder.isEmpty() && !QFileInfo::exists(target) ? 0666 : 0600)
    {}
    ~Place()
    {
        if (m_handle >= 0)
            ::close(m_handle);
        if (!m_name.isEmpty())
            (void)::unlink(m_name.constData());
    }
    Q_DISABLE_COPY_MOVE(Place)

    [[nodiscard]] int handle() const { return m_handle; }

    [[nodiscard]] bool open(bool)
    {
        m_handle = ::open(m_folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, m_mode);
        // Without /proc a file that has no name cannot be given one.
        if (m_handle >= 0 && ::access(descriptorName().constData(), F_OK) != 0)
            ::close(std::exchange(m_handle, -1));
        else if (m_handle >= 0 || !(errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL))
            return m_handle >= 0;
        m_name = passingName(m_folder);
        m_handle = ::open(m_name.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, m_mode);
        if (m_handle < 0)
            m_name.clear();
        return m_handle >= 0;
    }

    [[nodiscard]] qint64 write(const char *data, qint64 size) const
    {
        qint64 done = 0;
        while (done < size) {
            const ssize_t count = ::write(m_handle, data + done, static_cast<std::size_t>(size - done));
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                break;
            done += count;
        }
        return done;
    }
    [[nodiscard]] bool bringToDisk() const { return ::fdatasync(m_handle) == 0; }
    [[nodiscard]] bool bringWhollyToDisk() const { return ::fsync(m_handle) == 0; }
    [[nodiscard]] qint64 readBack(char *data, qint64 size, qint64 offset) const
    {
        return ::pread(m_handle, data, static_cast<std::size_t>(size), offset);
    }
    [[nodiscard]] qint64 modified() const
    {
        struct stat file = {};
        (void)::fstat(m_handle, &file);
        return qint64(file.st_mtim.tv_sec) * 1000000000 + file.st_mtim.tv_nsec;
    }

    [[nodiscard]] bool putInPlace(const QString &keptAs, bool &hasKept)
    {
        if (!getName())
            return false;
        const QByteArray kept = QFile::encodeName(keptAs);
        const bool keeps = !kept.isEmpty() && ::access(m_target.constData(), F_OK) == 0;
        hasKept = keeps && linkAs(m_target, kept, m_folder);
        const bool done = keeps && !hasKept ? swapInto(kept, hasKept) : rename(m_name, m_target);
        if (!done)
            return false;
        m_name.clear();
        bringFolderToDisk();
        return true;
    }

private:
    [[nodiscard]] QByteArray descriptorName() const { return "/proc/self/fd/" + QByteArray::number(m_handle); }

    [[nodiscard]] bool getName()
    {
        if (!m_name.isEmpty())
            return true;
        const QByteArray name = passingName(m_folder);
        if (::linkat(AT_FDCWD, descriptorName().constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) != 0)
            return false;
        m_name = name;
        return true;
    }

    /// Where files cannot have two names. Only if it cannot swap names either, the target is missing for a moment.
    [[nodiscard]] bool swapInto(const QByteArray &kept, bool &hasKept) const
    {
        if (exchange(m_name, m_target)) {
            hasKept = rename(m_name, kept);
            if (!hasKept)
                (void)::unlink(m_name.constData()); // the old file, which cannot be kept
            return true;
        }
        hasKept = rename(m_target, kept);
        if (rename(m_name, m_target))
            return true;
        const int error = errno;
        if (hasKept)
            (void)rename(kept, m_target);
        hasKept = false;
        errno = error;
        return false;
    }

    /// Not all file systems can; the rename itself is done in any case.
    void bringFolderToDisk() const
    {
        const int folder = ::open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder < 0)
            return;
        (void)::fsync(folder);
        ::close(folder);
    }

    QByteArray m_target;
    QByteArray m_folder;
    mode_t m_mode;
    QByteArray m_name; // empty: none yet
    int m_handle = -1;
};

#else

class StagedFile::Place
{
public:
    Place(const QString &target, const QString &folder)
        : m_target(target)
        , m_file(folder.isEmpty() ? target : folder + QStringLiteral("/staged.tmp"))
    {}

    [[nodiscard]] int handle() const { return -1; }
    [[nodiscard]] bool open(bool isText)
    {
        return succeeded(m_file.open(isText ? QIODevice::WriteOnly | QIODevice::Text : QIODevice::WriteOnly));
    }
    [[nodiscard]] qint64 write(const char *data, qint64 size)
    {
        const qint64 count = m_file.write(data, size);
        return succeeded(count == size) ? count : -1;
    }
    [[nodiscard]] bool bringToDisk() { return true; }
    [[nodiscard]] bool bringWhollyToDisk() { return succeeded(m_file.flush()); }
    [[nodiscard]] qint64 readBack(char *, qint64, qint64) const { return -1; }
    [[nodiscard]] qint64 modified() const { return stampOf(m_target).modified; }
    [[nodiscard]] bool putInPlace(const QString &keptAs, bool &hasKept)
    {
        if (!keptAs.isEmpty() && QFile::exists(m_target)) {
            QFile::remove(keptAs);
            hasKept = QFile::copy(m_target, keptAs);
        }
        return succeeded(m_file.commit());
    }

private:
    [[nodiscard]] bool succeeded(bool isGood)
    {
        if (!isGood)
            errno = m_file.error() == QFileDevice::PermissionsError || m_file.error() == QFileDevice::OpenError ? EACCES
                    : m_file.error() == QFileDevice::ResourceError                                              ? ENOSPC
                                                                                                                : EIO;
        return isGood;
    }

    QString m_target;
    QSaveFile m_file;
};

#endif

StagedFile::StagedFile(const QString &target)
    : m_target(target)
    , m_hash(kContentHash)
{}

StagedFile::~StagedFile() = default;

bool StagedFile::check(bool isGood)
{
    if (!isGood && m_error == 0)
        m_error = errno != 0 ? errno : EIO;
    return isGood;
}

bool StagedFile::beginIn(const QString &folder)
{
    m_error = 0;
    m_place = std::make_unique<Place>(m_target, folder);
    return check(m_place->open(m_isText)) && QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 StagedFile::writeData(const char *data, qint64 size)
{
    if (m_error != 0)
        return -1;
    const qint64 count = m_place->write(data, size);
    if (!check(count == size)) {
        m_written += qMax<qint64>(count, 0);
        return -1;
    }
    m_hash.addData(data, static_cast<int>(size));
    m_written += size;
    m_waiting += size;
    if (m_waiting < kMostWaiting)
        return size;
    m_waiting = 0;
    return check(m_place->bringToDisk()) ? size : -1;
}

bool StagedFile::finish()
{
    if (m_error != 0)
        return false;
    if (QFileInfo::exists(m_target))
        copyExtendedAttributes(m_target, m_place->handle());
    const QString accessOf = m_accessOf.isEmpty() ? m_target : m_accessOf;
    if (QFileInfo::exists(accessOf))
        copyAccess(accessOf, m_place->handle());
    return check(m_place->bringWhollyToDisk());
}

bool StagedFile::putInPlace(const QString &keptAs)
{
    return check(m_place->putInPlace(keptAs, m_hasKept));
}

FileStamp StagedFile::stamp() const
{
#ifdef Q_OS_LINUX
    return {m_written, m_place->modified(), m_hash.result()};
#else
    return stampOf(m_target); // the ends of lines make it differ from what was written
#endif
}

qint64 StagedFile::readBack(char *data, qint64 size, qint64 offset) const
{
    return m_place->readBack(data, size, offset);
}
