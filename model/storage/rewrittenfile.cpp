#include "model/storage/rewrittenfile.h"

#include "model/storage/stagedfile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

constexpr qint64 kPart = qint64(1024) * 1024;

} // namespace

/// Files of the same name from different folders must not meet.
QString RewrittenFile::copyNameIn(const QString &folder, const QString &fileName)
{
    const QString path =
        QString::fromLatin1(QCryptographicHash::hash(fileName.toUtf8(), QCryptographicHash::Sha1).toHex().left(8));
    return QDir(folder).filePath(path + QLatin1Char('-') + QFileInfo(fileName).fileName().right(150)
                                 + QLatin1Char('~'));
}

RewrittenFile::RewrittenFile(const QString &fileName, const QString &folder, const std::function<void()> &pause)
    : m_fileName(fileName)
    , m_folder(folder)
    , m_copyName(copyNameIn(folder, fileName))
    , m_pause(pause)
{}

void RewrittenFile::removeCopy() const
{
    QFile::remove(m_copyName);
}

FileStamp RewrittenFile::stamp() const
{
    return stampOf(m_fileName);
}

bool RewrittenFile::check(bool isGood)
{
    if (!isGood && m_error == 0)
        m_error = errno != 0 ? errno : EIO;
    return isGood;
}

#ifdef Q_OS_LINUX

bool RewrittenFile::isNeeded(const QString &fileName, int errorNumber)
{
    return (errorNumber == EACCES || errorNumber == EPERM) && QFileInfo(fileName).isWritable();
}

bool RewrittenFile::keepCopy()
{
    QFile old(m_fileName);
    StagedFile copy(m_copyName);
    copy.setAccessOf(m_fileName);
    errno = 0;
    if (!check(QDir().mkpath(m_folder) && old.open(QIODevice::ReadOnly)))
        return false;
    if (!copy.begin()) {
        m_error = copy.errorNumber();
        return false;
    }
    QByteArray part;
    while (!(part = old.read(kPart)).isEmpty() && copy.write(part) == part.size())
        m_pause();
    if (!check(old.error() == QFileDevice::NoError))
        return false;
    if (!copy.finish() || !copy.putInPlace({}))
        m_error = copy.errorNumber();
    return m_error == 0;
}

/// Space that is missing shows here, where nothing is lost yet.
bool RewrittenFile::hasRoomFor(int handle, qint64 oldSize, qint64 newSize)
{
    if (newSize <= oldSize)
        return true;
    errno = ::posix_fallocate(handle, oldSize, newSize - oldSize);
    if (errno == 0 || errno == EOPNOTSUPP || errno == EINVAL)
        return true;
    (void)check(false);
    (void)::ftruncate(handle, oldSize);
    return false;
}

bool RewrittenFile::overwrite(int handle, const Part &part, qint64 size)
{
    QByteArray buffer(static_cast<int>(kPart), '\0');
    for (qint64 done = 0; done < size;) {
        errno = 0;
        const qint64 count = part(buffer.data(), qMin(kPart, size - done), done);
        if (!check(count > 0))
            return false;
        for (qint64 written = 0; written < count;) {
            const ssize_t more = ::pwrite(handle, buffer.constData() + written,
                                          static_cast<std::size_t>(count - written), done + written);
            if (!check(more > 0))
                return false;
            written += more;
        }
        done += count;
        m_pause();
    }
    return check(::ftruncate(handle, size) == 0) && check(::fsync(handle) == 0);
}

/// Now the copy is all there is of the old content: the next attempt must not replace it.
void RewrittenFile::keepForGood()
{
    constexpr int kMost = 1000;
    for (int number = 2; number < kMost; ++number) {
        const QString name = m_copyName + QString::number(number);
        if (QFile::exists(name) || !QFile::rename(m_copyName, name))
            continue;
        m_copyName = name;
        return;
    }
}

void RewrittenFile::putBack(int handle, qint64 size)
{
    QFile copy(m_copyName);
    const int error = m_error;
    const auto part = [&copy](char *data, qint64 most, qint64) { return copy.read(data, most); };
    m_isDamaged = !copy.open(QIODevice::ReadOnly) || copy.size() != size || !overwrite(handle, part, size);
    if (m_isDamaged)
        keepForGood();
    m_error = error;
}

bool RewrittenFile::take(const StagedFile &content)
{
    if (!keepCopy())
        return false;
    const int handle = ::open(QFile::encodeName(m_fileName).constData(), O_WRONLY | O_CLOEXEC);
    if (!check(handle >= 0))
        return false;
    const qint64 oldSize = ::lseek(handle, 0, SEEK_END);
    const qint64 newSize = content.bytesWritten();
    const auto part = [&content](char *data, qint64 size, qint64 offset) {
        return content.readBack(data, size, offset);
    };
    const bool hasRoom = hasRoomFor(handle, oldSize, newSize);
    const bool done = hasRoom && overwrite(handle, part, newSize);
    if (hasRoom && !done)
        putBack(handle, oldSize);
    ::close(handle);
    return done;
}

#else

bool RewrittenFile::isNeeded(const QString &, int)
{
    return false;
}
bool RewrittenFile::take(const StagedFile &)
{
    return false;
}

#endif
