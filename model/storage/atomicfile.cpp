#include "model/storage/atomicfile.h"

#include "model/storage/replacedfile.h"
#include "model/storage/rewrittenfile.h"
#include "model/storage/stagedfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <cerrno>

namespace {

using Write = std::function<bool(QIODevice &target)>;

/// Takes everything and keeps nothing.
class CountingDevice : public QIODevice
{
public:
    CountingDevice() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    [[nodiscard]] qint64 count() const { return m_count; }
    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        m_count += size;
        return size;
    }

private:
    qint64 m_count = 0;
};

/// errno if a file is there and may not be written to, although the folder might let another one take its place.
int protectionOf(const QString &fileName)
{
    QFile file(fileName);
    if (!file.exists())
        return 0;
    errno = 0;
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly)) // leaves it as it is
        return 0;
    return errno != 0 ? errno : EACCES;
}

/// Replaces one file, by another one or where it is.
class Replacer
{
public:
    Replacer(const QString &fileName, const std::function<void()> &pause, const ReplaceOptions &options)
        : m_fileName(fileName)
        , m_target(realFile(fileName))
        , m_pause(pause)
        , m_options(options)
        , m_staged(m_target)
    {}

    [[nodiscard]] Replacement run(const Write &write)
    {
        m_result.fault = targetFault(m_fileName);
        const int protection = m_result.fault ? 0 : protectionOf(m_target);
        if (protection != 0)
            fail(protection);
        if (!m_result.fault && stage(write))
            m_rewrites ? rewrite() : replace();
        return m_result;
    }

private:
    void fail(int error) { m_result.fault = systemFault(error, m_fileName, FileFault::Kind::WriteError); }

    [[nodiscard]] bool stage(const Write &write)
    {
        m_staged.setAccessOf(m_options.accessOf);
        m_staged.setText(m_options.isText);
        if (!m_staged.begin()) {
            const int error = m_staged.errorNumber();
            m_rewrites = !m_options.rescueFolder.isEmpty() && RewrittenFile::isNeeded(m_target, error);
            if (!m_rewrites || !QDir().mkpath(m_options.rescueFolder) || !m_staged.beginIn(m_options.rescueFolder)) {
                fail(error);
                return false;
            }
        }
        if (!write(m_staged) || !m_staged.finish()) {
            fail(m_staged.errorNumber());
            if (m_result.fault.kind == FileFault::Kind::NoSpace)
                m_result.fault.missingBytes = missingBytes(write);
            return false;
        }
        if (!m_options.mayReplace || m_options.mayReplace())
            return true;
        m_result.fault = {FileFault::Kind::ChangedMeanwhile, m_fileName, 0, 0, 0, {}, {}};
        return false;
    }

    [[nodiscard]] qint64 missingBytes(const Write &write) const
    {
        CountingDevice whole;
        if (!write(whole))
            return 0;
        const QString folder = m_rewrites ? m_options.rescueFolder : QFileInfo(m_target).absolutePath();
        return qMax<qint64>(0, whole.count() - m_staged.bytesWritten() - QStorageInfo(folder).bytesAvailable());
    }

    void replace()
    {
        // An empty file is what a crash of the system leaves; it must not take the place of a good one.
        const bool keeps = m_options.keepsOld && stampOf(m_target).size > 0;
        const QString keptAs = keeps ? backupName(m_target) : QString();
        const ReplacedFile old(m_target);
        const ReplacedFile olderOne(keptAs);
        if (!m_staged.putInPlace(keptAs)) {
            fail(m_staged.errorNumber());
            return;
        }
        m_result.lacksOld = keeps && !m_staged.hasKept();
        m_result.stamp = m_staged.stamp();
        old.free(m_pause);
        olderOne.free(m_pause);
    }

    void rewrite()
    {
        RewrittenFile file(m_target, m_options.rescueFolder, m_pause);
        if (!file.take(m_staged)) {
            fail(file.errorNumber());
            if (file.isDamaged())
                m_result.fault.keptCopy = file.copyName();
            return;
        }
        m_result.stamp = m_staged.stamp();
        m_result.stamp.modified = file.stamp().modified;
        if (!m_options.keepsOld)
            file.removeCopy();
    }

    QString m_fileName;
    QString m_target;
    std::function<void()> m_pause;
    const ReplaceOptions &m_options;
    StagedFile m_staged;
    Replacement m_result;
    bool m_rewrites = false;
};

} // namespace

Replacement replaceFile(const QString &fileName, const Write &write, const std::function<void()> &pause,
                        const ReplaceOptions &options)
{
    return Replacer(fileName, pause, options).run(write);
}

QString backupName(const QString &fileName)
{
    return fileName + QLatin1Char('~');
}

QString realFile(const QString &fileName)
{
    constexpr int kMostLinks = 40; // as many as the system follows
    QFileInfo file(fileName);
    for (int links = 0; file.isSymLink() && !file.exists() && links < kMostLinks; ++links)
        file.setFile(file.symLinkTarget());
    if (file.exists())
        return file.canonicalFilePath();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? file.absoluteFilePath() : QDir(folder).filePath(file.fileName());
}
