#include "controller/logger/importorigins.h"

#include "controller/logger/boxfolders.h"
#include "controller/logger/localfolder.h"

#include <QFileInfo>

ImportOrigins::ImportOrigins(const BoxFolders &folders, const LocalFolder &local, const QStringList &files,
                             const std::function<void(qint64)> &progress)
    : m_folders(folders)
    , m_local(local)
    , m_files(loggerFiles(files, progress))
{
    for (const LoggerFile &file : qAsConst(m_files))
        m_fingerprints.insert(file.path, file.fingerprint);
}

ShotOrigin ImportOrigins::originOf(const QString &file) const
{
    const QString box = m_folders.boxOf(file);
    const QByteArray hash = m_fingerprints.value(file);
    const QFileInfo info(file);
    if (!box.isEmpty())
        return {box, info.dir().dirName() + QLatin1Char('/') + info.fileName(), hash};
    const QString original = m_local.originOf(file);
    return {{}, original.isEmpty() ? info.absoluteFilePath() : original, hash};
}

QStringList ImportOrigins::filesWithout(const QSet<QByteArray> &fingerprints) const
{
    QStringList files;
    for (const LoggerFile &file : m_files) {
        if (!fingerprints.contains(file.fingerprint))
            files.append(file.path);
    }
    return files;
}
