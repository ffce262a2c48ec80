#include "controller/logger/loggercopies.h"

#include "controller/logging.h"
#include "model/blackbox/blackboxfile.h"

#include <QFileInfo>

namespace {

QFileInfoList entriesOf(const QDir &folder)
{
    return folder.entryInfoList({QStringLiteral("*.bb")}, QDir::Files, QDir::Name);
}

/// Replaces what is there only by a complete copy.
bool copyOver(const QFileInfo &source, const QString &target)
{
    if (QFileInfo(target).canonicalFilePath() == source.canonicalFilePath())
        return true;
    const QString part = target + QStringLiteral(".part");
    (void)QFile::remove(part); // left by a run that was broken off, or nothing
    if (!QFile::copy(source.filePath(), part))
        return false;
    (void)QFile::remove(target); // if that fails, so does the next step
    const bool replaced = QFile::rename(part, target);
    if (!replaced)
        (void)QFile::remove(part); // leave no partial copy behind
    return replaced;
}

} // namespace

QStringList loggerFilesIn(const QDir &folder)
{
    QStringList files;
    const QFileInfoList found = entriesOf(folder);
    for (const QFileInfo &file : found)
        files.append(file.absoluteFilePath());
    return files;
}

QStringList LoggerCopies::copyAll(const QDir &source, const QDir &target)
{
    QStringList copied;
    const QFileInfoList found = entriesOf(source);
    for (const QFileInfo &file : found) {
        qCDebug(lcController).noquote() << "file =" << file.fileName();
        const QString copy = placeFor(file, target);
        if (copyOver(file, copy))
            copied.append(copy);
        else
            qCDebug(lcController).noquote() << "file could not be copied:" << file.fileName();
    }
    return copied;
}

/// A file of another folder that has the same name but contains something else keeps its copy.
QString LoggerCopies::placeFor(const QFileInfo &file, const QDir &folder)
{
    const QString origin = file.canonicalFilePath();
    QString target = folder.absoluteFilePath(file.fileName());
    for (int i = 2; m_origins.value(target, origin) != origin; ++i) {
        if (blackBoxFingerprint(target) == blackBoxFingerprint(origin))
            return target;
        target = folder.absoluteFilePath(file.completeBaseName() + QStringLiteral("-%1.").arg(i) + file.suffix());
    }
    m_origins.insert(target, origin);
    return target;
}
