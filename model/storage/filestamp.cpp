#include "model/storage/filestamp.h"

#include "model/storage/hashedsource.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#endif

FileStamp stampOf(const QString &fileName)
{
#ifdef Q_OS_LINUX
    // Nanoseconds: two saves within the same millisecond differ.
    struct stat file = {};
    if (fileName.isEmpty() || ::stat(QFile::encodeName(fileName).constData(), &file) != 0)
        return {};
    return {file.st_size, qint64(file.st_mtim.tv_sec) * 1000000000 + file.st_mtim.tv_nsec, {}};
#else
    const QFileInfo file(fileName);
    if (!file.exists())
        return {};
    return {file.size(), file.lastModified().toMSecsSinceEpoch() * 1000000, {}};
#endif
}

QByteArray hashOf(const QString &fileName, const std::function<void()> &pause)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    HashedSource source(file);
    while (source.skipPart())
        pause();
    return source.hash();
}
