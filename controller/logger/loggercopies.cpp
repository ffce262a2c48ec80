#include "controller/logger/loggercopies.h"

#include "controller/logging.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>

namespace {

constexpr qint64 kChunk = 256 * 1024; // bytes, for which nobody has to wait

QFileInfoList entriesOf(const QDir &folder)
{
    return folder.entryInfoList({QStringLiteral("*.bb")}, QDir::Files, QDir::Name);
}

/// A file on its way from one name to another: the original is read once for both the copy and its fingerprint, and
/// what is in its place is replaced only by a complete copy.
class Copying
{
public:
    Copying(const QFileInfo &source, const QDir &folder)
        : m_source(source.filePath())
        , m_part(folder.absoluteFilePath(source.fileName() + QStringLiteral(".part")))
        , m_time(source.lastModified())
    {}
    ~Copying()
    {
        if (!m_isFinished)
            (void)m_part.remove(); // leave no partial copy behind
    }
    Q_DISABLE_COPY_MOVE(Copying)

    [[nodiscard]] bool read(const std::function<bool()> &goesOn)
    {
        if (!m_source.open(QIODevice::ReadOnly) || !m_part.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return false;
        QCryptographicHash hash(QCryptographicHash::Sha1);
        for (QByteArray chunk = m_source.read(kChunk); !chunk.isEmpty(); chunk = m_source.read(kChunk)) {
            hash.addData(chunk);
            if (m_part.write(chunk) != chunk.size() || !goesOn())
                return false;
        }
        m_fingerprint = hash.result();
        (void)m_part.setFileTime(m_time, QFileDevice::FileModificationTime); // not every file system has it
        return m_source.error() == QFileDevice::NoError && m_part.flush() && m_part.error() == QFileDevice::NoError;
    }
    [[nodiscard]] bool finish(const QString &target)
    {
        m_part.close();
        (void)QFile::remove(target); // if that fails, so does the next step
        m_isFinished = m_part.rename(target);
        return m_isFinished;
    }
    [[nodiscard]] QByteArray fingerprint() const { return m_fingerprint; }
    [[nodiscard]] qint64 size() const { return m_source.size(); }
    [[nodiscard]] QString reason() const
    {
        return m_source.error() != QFileDevice::NoError ? m_source.errorString() : m_part.errorString();
    }

private:
    QFile m_source;
    QFile m_part;
    QDateTime m_time;
    QByteArray m_fingerprint;
    bool m_isFinished = false; ///< and has the name of the copy
};

} // namespace

QStringList loggerFilesIn(const QDir &folder)
{
    QStringList files;
    const QFileInfoList found = entriesOf(folder);
    for (const QFileInfo &file : found)
        files.append(file.absoluteFilePath());
    return files;
}

LoggerCopies::Result LoggerCopies::copyAll(const QDir &source, const QDir &target, const GoesOn &goesOn)
{
    Result result;
    const QFileInfoList found = entriesOf(source);
    int done = 0;
    for (const QFileInfo &file : found) {
        if (!goesOn(done, found.size()))
            break;
        qCDebug(lcController).noquote() << "file =" << file.fileName();
        bool isWanted = true;
        Copying copying(file, target);
        const bool isRead = copying.read([&] { return isWanted = goesOn(done, found.size()); });
        const QString copy = isRead ? placeFor(file, copying.fingerprint(), target) : QString();
        // The folder may be the target itself.
        const bool isThere = isRead && QFileInfo(copy).canonicalFilePath() == file.canonicalFilePath();
        if (isThere || (isRead && copying.finish(copy))) {
            if (m_known.value(copy).fingerprint != copying.fingerprint()) // else it stays the copy of the first one
                m_known.insert(copy, {file.canonicalFilePath(), copying.fingerprint()});
            result.copies.append({copy, copying.fingerprint(), copying.size()});
        } else if (isWanted) {
            qCDebug(lcController).noquote() << "file could not be copied:" << file.fileName();
            result.failures.append(file.fileName() + QStringLiteral(": ") + copying.reason());
        }
        ++done;
    }
    return result;
}

/// A file of another folder that has the same name but contains something else keeps its copy.
QString LoggerCopies::placeFor(const QFileInfo &file, const QByteArray &fingerprint, const QDir &folder) const
{
    const QString origin = file.canonicalFilePath();
    QString target = folder.absoluteFilePath(file.fileName());
    for (int i = 2; m_known.contains(target); ++i) {
        const Known known = m_known.value(target);
        if (known.origin == origin || known.fingerprint == fingerprint)
            break;
        target = folder.absoluteFilePath(file.completeBaseName() + QStringLiteral("-%1.").arg(i) + file.suffix());
    }
    return target;
}
