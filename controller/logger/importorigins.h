#pragma once

#include "model/blackbox/loggerfile.h"
#include "model/project/shotorigin.h"

#include <QHash>
#include <QSet>

class BoxFolders;
class LocalFolder;

/// Where the logger files that are to be imported came from, with the hashes of their whole content.
class ImportOrigins
{
public:
    /// Reads the files; both others must outlive this. `progress` is called often, with the number of bytes read.
    ImportOrigins(const BoxFolders &folders, const LocalFolder &local, const QStringList &files,
                  const std::function<void(qint64)> &progress);

    [[nodiscard]] ShotOrigin originOf(const QString &file) const;
    /// Those of the files, in their order, whose fingerprint is not among these.
    [[nodiscard]] QStringList filesWithout(const QSet<QByteArray> &fingerprints) const;

private:
    const BoxFolders &m_folders;
    const LocalFolder &m_local;
    QVector<LoggerFile> m_files;
    QHash<QString, QByteArray> m_fingerprints;
};
