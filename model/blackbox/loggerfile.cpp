#include "model/blackbox/loggerfile.h"

#include "model/blackbox/blackboxfile.h"

#include <QFileInfo>

QVector<LoggerFile> loggerFiles(const QStringList &absolutePaths, const std::function<void(qint64 bytes)> &progress)
{
    QVector<LoggerFile> files;
    files.reserve(absolutePaths.size());
    for (const QString &path : absolutePaths)
        files.append({path, blackBoxFingerprint(path, progress), QFileInfo(path).size()});
    return files;
}
