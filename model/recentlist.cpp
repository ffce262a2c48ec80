#include "model/recentlist.h"

#include <QDir>
#include <QFileInfo>
#include <QVariant>

namespace recentlist {

QStringList withFront(const QStringList &list, const QString &entry, Qt::CaseSensitivity sensitivity)
{
    if (entry.isEmpty())
        return list;
    QStringList result{entry};
    for (const QString &old : list) {
        if (result.size() < kMaxRecent && !result.contains(old, sensitivity))
            result.append(old);
    }
    return result;
}

QStringList fromSettings(const QVariant &stored, const std::function<bool(const QString &)> &isAccepted,
                         Qt::CaseSensitivity sensitivity)
{
    QStringList result;
    const QStringList entries = stored.toStringList();
    for (const QString &entry : entries) {
        if (result.size() < kMaxRecent && isAccepted(entry) && !result.contains(entry, sensitivity))
            result.append(entry);
    }
    return result;
}

Qt::CaseSensitivity pathSensitivity()
{
#ifdef Q_OS_WIN
    return Qt::CaseInsensitive;
#else
    return Qt::CaseSensitive;
#endif
}

QString canonicalPath(const QString &fileName)
{
    const QFileInfo file(fileName);
    const QString canonical = file.canonicalFilePath(); // empty if there is no such file
    return canonical.isEmpty() ? QDir::cleanPath(file.absoluteFilePath()) : canonical;
}

} // namespace recentlist
