#include "model/model.h"
#include "model/storage/atomicfile.h"
#include "model/storage/rewrittenfile.h"
#include "model/storage/stagedfile.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/smalldisk.h"

#include <QTemporaryDir>

#include <array>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>

Q_DECLARE_METATYPE(FileFault::Kind)

namespace {

constexpr uid_t kNobody = 65534;
const char *const kAccessList = "system.posix_acl_access";

/// "user 65533 may read, everybody else nothing" as the system keeps it.
QByteArray accessList()
{
    const auto entry = [](int tag, int rights, quint32 id) {
        const auto number = [](quint32 value, int bytes) {
            QByteArray text;
            for (; bytes > 0; --bytes, value >>= 8U)
                text.append(static_cast<char>(value & 0xFFU));
            return text;
        };
        return number(static_cast<quint32>(tag), 2) + number(static_cast<quint32>(rights), 2) + number(id, 4);
    };
    constexpr quint32 kNone = 0xFFFFFFFF;
    return QByteArray::fromHex("02000000") + entry(1, 6, kNone) + entry(2, 4, 65533) + entry(4, 0, kNone)
           + entry(0x10, 4, kNone) + entry(0x20, 0, kNone);
}

/// Without the rights of root for its lifetime.
class AsNobody
{
public:
    AsNobody() { m_isNobody = ::setegid(kNobody) == 0 && ::seteuid(kNobody) == 0; }
    ~AsNobody()
    {
        (void)::seteuid(0);
        (void)::setegid(0);
    }
    Q_DISABLE_COPY_MOVE(AsNobody)
    [[nodiscard]] bool isNobody() const { return m_isNobody; }

private:
    bool m_isNobody;
};

/// No file may get larger for its lifetime.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        (void)::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit low{bytes, m_before.rlim_max};
        (void)::setrlimit(RLIMIT_FSIZE, &low);
    }
    ~SizeLimit()
    {
        (void)::setrlimit(RLIMIT_FSIZE, &m_before);
        (void)std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(SizeLimit)

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

struct stat statusOf(const QString &file)
{
    struct stat status = {};
    (void)::stat(QFile::encodeName(file).constData(), &status);
    return status;
}

QByteArray attribute(const QString &file, const char *name)
{
    std::array<char, 256> value{};
    const ssize_t size = ::getxattr(QFile::encodeName(file).constData(), name, value.data(), value.size());
    return size > 0 ? QByteArray(value.data(), static_cast<int>(size)) : QByteArray();
}

bool setAttribute(const QString &file, const char *name, const QByteArray &value)
{
    return ::setxattr(QFile::encodeName(file).constData(), name, value.constData(),
                      static_cast<std::size_t>(value.size()), 0)
           == 0;
}

Replacement replace(const QString &file, const QByteArray &content, const ReplaceOptions &options = {})
{
    return replaceFile(
        file, [&](QIODevice &target) { return target.write(content) == content.size(); }, [] {}, options);
}

} // namespace

class TestReplaceFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_file = path("a.vnt");
    }

    void keepsWhatBelongsToTheFile()
    {
        writeFile(m_file, "old");
        QCOMPARE(::chmod(qPrintable(m_file), 0640), 0);
        if (::chown(qPrintable(m_file), kNobody, 12345) != 0)
            QSKIP("only root may give files away");
        if (!setAttribute(m_file, "user.origin", "machine 7") || !setAttribute(m_file, kAccessList, accessList()))
            QSKIP("this file system has no extended attributes");
        const struct stat before = statusOf(m_file);
        QVERIFY(replace(m_file, "new"));
        const struct stat after = statusOf(m_file);
        QCOMPARE(contentOf(m_file), "new"_ba);
        QVERIFY(after.st_ino != before.st_ino);
        QCOMPARE(after.st_mode, before.st_mode);
        QCOMPARE(after.st_uid, before.st_uid);
        QCOMPARE(after.st_gid, before.st_gid);
        QCOMPARE(attribute(m_file, "user.origin"), "machine 7"_ba);
        QCOMPARE(attribute(m_file, kAccessList), accessList());
        ReplaceOptions sameEyes;
        sameEyes.accessOf = m_file;
        QVERIFY(replace(path("a.vnt.meta"), "beside", sameEyes));
        QCOMPARE(statusOf(path("a.vnt.meta")).st_mode, before.st_mode);
        QCOMPARE(attribute(path("a.vnt.meta"), kAccessList), accessList());
    }

    void newFilesObeyTheMask()
    {
        const mode_t before = ::umask(027);
        QVERIFY(replace(m_file, "new"));
        (void)::umask(before);
        QCOMPARE(statusOf(m_file).st_mode & 07777U, 0640U);
    }

    void backup_data()
    {
        // kept: what is in the backup afterwards
        columns<QByteArray, QByteArray, bool, QByteArray, bool>("old", "backup", "keepsOld", "kept", "lacksOld");
        row("first save", QByteArray(), QByteArray(), true, "cannot be read"_ba, false);
        row("second save", "old"_ba, QByteArray(), true, "old"_ba, false);
        row("third save", "old"_ba, "older"_ba, true, "old"_ba, false);
        row("switched off", "old"_ba, "older"_ba, false, "older"_ba, false);
        row("empty file", "empty"_ba, "older"_ba, true, "older"_ba, false);
        row("same file", "old"_ba, "linked"_ba, true, "old"_ba, false);
        row("folder in the way", "old"_ba, "folder"_ba, true, "cannot be read"_ba, true);
    }

    void backup()
    {
        QFETCH(QByteArray, old);
        QFETCH(QByteArray, backup);
        QFETCH(bool, keepsOld);
        const QString kept = backupName(m_file);
        if (!old.isEmpty())
            writeFile(m_file, old == "empty" ? QByteArray() : old);
        if (backup == "folder")
            QVERIFY(QDir().mkdir(kept));
        else if (backup == "linked")
            QCOMPARE(::link(qPrintable(m_file), qPrintable(kept)), 0);
        else if (!backup.isEmpty())
            writeFile(kept, backup);
        ReplaceOptions options;
        options.keepsOld = keepsOld;
        const Replacement done = replace(m_file, "new", options);
        QVERIFY(done);
        QTEST(done.lacksOld, "lacksOld");
        QCOMPARE(contentOf(m_file), "new"_ba);
        QTEST(contentOf(kept), "kept");
        QCOMPARE(done.stamp.hash, hashOf(m_file, [] {}));
        QVERIFY(done.stamp.looksLike(stampOf(m_file)));
        const QStringList all =
            QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        QVERIFY(all.size() <= 2);
    }

    void faults_data()
    {
        columns<QString, FileFault::Kind>("name", "kind");
        row("no folder", "missing/a.vnt", FileFault::Kind::NoFolder);
        row("a file instead of a folder", "file/a.vnt", FileFault::Kind::NoFolder);
        row("a folder", "sub", FileFault::Kind::IsFolder);
        row("a pipe", "pipe", FileFault::Kind::NotRegular);
        row("long name", QString(251, QLatin1Char('x')) + ".vnts"_s, FileFault::Kind::NameTooLong);
        row("no name", QString(), FileFault::Kind::NotThere);
    }

    void faults()
    {
        QFETCH(QString, name);
        writeFile(path("file"), "x");
        QVERIFY(QDir().mkdir(path("sub")));
        QCOMPARE(::mkfifo(qPrintable(path("pipe")), 0600), 0);
        const Replacement done = replace(name.isEmpty() ? name : m_folder->filePath(name), "new");
        QVERIFY(!done);
        QTEST(done.fault.kind, "kind");
        QCOMPARE(
            QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
            (QStringList{"file"_s, "pipe"_s, "sub"_s}));
    }

    void theLongestNameIsPossible()
    {
        const QString file = m_folder->filePath(QString(251, QLatin1Char('x')) + ".vnt"_s);
        writeFile(file, "old");
        ReplaceOptions options;
        options.keepsOld = true;
        const Replacement done = replace(file, "new", options); // its backup would have one character too many
        QVERIFY(done && done.lacksOld);
        QCOMPARE(contentOf(file), "new"_ba);
    }

    void fullDiskSaysHowMuchIsMissing()
    {
        const SmallDisk disk(1 << 20);
        if (!disk.isMounted())
            QSKIP("this user may not mount a small file system");
        const QString file = disk.path() + "/a.vnt"_s;
        const QByteArray old(300 << 10, 'o');
        writeFile(file, old);
        const Replacement done = replaceFile(file, [](QIODevice &target) {
            const QByteArray part(1 << 16, 'n');
            for (int i = 0; i < 32; ++i) // 2 MB
                if (target.write(part) != part.size())
                    return false;
            return true;
        });
        QCOMPARE(done.fault.kind, FileFault::Kind::NoSpace);
        constexpr qint64 kPages = 4 * 4096; // what the file system needs for itself
        const qint64 missing = (2 << 20) - (1 << 20) + old.size();
        QVERIFY2(qAbs(done.fault.missingBytes - missing) <= kPages,
                 qPrintable(QString::number(done.fault.missingBytes)));
        QVERIFY(contentOf(file) == old);
        QVERIFY(replace(file, QByteArray(700 << 10, 'n'))); // nearly all that is free: nothing was left behind
        QVERIFY(disk.makeReadOnly());
        QCOMPARE(replace(file, "x").fault.kind, FileFault::Kind::ReadOnlyMedium);
        QCOMPARE(contentOf(file).size(), 700 << 10);
    }

    /// A folder that lets everything be replaced does not make a write-protected file a free one.
    void writeProtectedFilesStay()
    {
        if (::geteuid() != 0)
            QSKIP("only root can give away the folder");
        writeFile(m_file, "old");
        QCOMPARE(::chmod(qPrintable(m_file), 0444), 0);
        for (const QString &name : {m_folder->path(), m_file})
            QCOMPARE(::chown(qPrintable(name), kNobody, kNobody), 0);
        ReplaceOptions options;
        options.keepsOld = true;
        options.rescueFolder = path("rescue");
        Replacement done;
        bool isOtherDone = false;
        {
            const AsNobody nobody;
            done = replace(m_file, "new", options);
            isOtherDone = bool(replace(path("b.vnt"), "new", options));
        }
        QCOMPARE(done.fault.kind, FileFault::Kind::NoPermission);
        QCOMPARE(contentOf(m_file), "old"_ba);
        QVERIFY(isOtherDone);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 (QStringList{"a.vnt"_s, "b.vnt"_s}));
    }

    void rewritesInAFolderThatCannotBeWrittenTo_data()
    {
        columns<QByteArray, bool, bool>("content", "keepsOld", "isDone");
        row("longer", QByteArray(50000, 'n'), true, true);
        row("shorter", QByteArray("n"), true, true);
        row("without backup", QByteArray(50000, 'n'), false, true);
        row("no room", QByteArray(150000, 'n'), true, false);
    }

    void rewritesInAFolderThatCannotBeWrittenTo()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, keepsOld);
        QFETCH(bool, isDone);
        if (::geteuid() != 0)
            QSKIP("only root can give away the folder");
        const QByteArray old(1000, 'o');
        writeFile(m_file, old);
        QCOMPARE(::chown(qPrintable(m_file), kNobody, kNobody), 0);
        QCOMPARE(::chmod(qPrintable(m_folder->path()), 0755), 0);
        const QTemporaryDir rescue;
        QCOMPARE(::chown(qPrintable(rescue.path()), kNobody, kNobody), 0);
        ReplaceOptions options;
        options.keepsOld = keepsOld;
        options.rescueFolder = rescue.filePath("backup"_s);
        const struct stat before = statusOf(m_file);
        Replacement done;
        {
            const AsNobody nobody;
            QVERIFY(nobody.isNobody());
            QVERIFY(!replace(path("b.vnt"), "x", options)); // one that does not exist cannot be rewritten
            const SizeLimit limit(100000);
            done = replace(m_file, content, options);
        }
        QCOMPARE(bool(done), isDone);
        QVERIFY(contentOf(m_file) == (isDone ? content : old));
        QCOMPARE(statusOf(m_file).st_ino, before.st_ino);
        QVERIFY(!isDone || done.stamp.looksLike(stampOf(m_file)));
        const QStringList kept = QDir(options.rescueFolder).entryList(QDir::Files | QDir::Hidden);
        QCOMPARE(kept.size(), isDone && keepsOld ? 1 : 0);
        if (!kept.isEmpty())
            QVERIFY(contentOf(options.rescueFolder + QLatin1Char('/') + kept.constFirst()) == old);
    }

    /// The new content ends too early, after the first bytes of the old one have been overwritten.
    void whatCannotBeRewrittenGoesBack_data()
    {
        columns<int, int, bool>("oldSize", "limit", "isDamaged");
        row("grows", 1000, 4000000, false);
        row("no room to grow", 1000, 2000000, false);
        row("shrinks", 3500000, 4000000, false);
    }

    void whatCannotBeRewrittenGoesBack()
    {
        QFETCH(int, oldSize);
        QFETCH(int, limit);
        const QByteArray old(oldSize, 'o');
        writeFile(m_file, old);
        StagedFile content(path("other.vnt"));
        QVERIFY(content.begin());
        const QByteArray fresh(3000000, 'n');
        QCOMPARE(content.write(fresh), qint64(fresh.size()));
        for (const QFileInfo &open : QDir("/proc/self/fd"_s).entryInfoList(QDir::AllEntries | QDir::System))
            if (open.symLinkTarget().startsWith(m_folder->path()))
                QCOMPARE(::truncate(qPrintable(open.filePath()), 1500000), 0);
        RewrittenFile file(m_file, path("rescue"), [] {});
        {
            const SizeLimit size(static_cast<rlim_t>(limit));
            QVERIFY(!file.take(content));
        }
        QTEST(file.isDamaged(), "isDamaged");
        QVERIFY(file.errorNumber() != 0);
        QVERIFY(contentOf(m_file) == old);
        QVERIFY(contentOf(file.copyName()) == old);
    }

    /// Neither the new content nor the old one can be written: the copy must outlive the next attempt.
    void theOnlyCopyIsNotReplaced()
    {
        const QByteArray old(3500000, 'o');
        writeFile(m_file, old);
        StagedFile content(path("other.vnt"));
        const QByteArray fresh(3000000, 'n');
        QVERIFY(content.begin() && content.write(fresh) == fresh.size());
        std::unique_ptr<SizeLimit> limit;
        const QString usualCopy = RewrittenFile::copyNameIn(path("rescue"), m_file);
        RewrittenFile file(m_file, path("rescue"), [&] {
            if (!limit && QFile::exists(usualCopy))
                limit = std::make_unique<SizeLimit>(100); // the medium fails from now on
        });
        QVERIFY(!file.take(content));
        limit.reset();
        QVERIFY(file.isDamaged());
        QVERIFY(contentOf(m_file) != old);
        RewrittenFile again(m_file, path("rescue"), [] {});
        QVERIFY(again.take(content));
        QVERIFY(contentOf(m_file) == fresh);
        QVERIFY(contentOf(file.copyName()) == old);
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

QTEST_GUILESS_MAIN(TestReplaceFile)
#include "tst_replacefile.moc"
