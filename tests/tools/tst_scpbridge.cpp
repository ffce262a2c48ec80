#include "device/scptransfer.h"
#include "tests/support/delayedlink.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/sshserver.h"

Q_DECLARE_METATYPE(ScpOutcome)

namespace {

const QString kUser = "pi"_s;
const QString kPassword = "gEh3im@:x"_s;
const QString kHost = "127.0.0.1"_s;
const QString kDay = "dir-20240305"_s;
const QDateTime kTime({2024, 3, 5}, {10, 11, 12});

/// True if the command line or the environment of any process shows the text.
bool processesShow(const QByteArray &text)
{
    for (const QString &process : QDir("/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QString &list : {"cmdline"_s, "environ"_s}) {
            if (process.toInt() > 0 && contentOf("/proc/%1/%2"_s.arg(process, list)).contains(text))
                return true;
        }
    }
    return false;
}

QByteArray bytesOf(int count)
{
    QByteArray bytes(count, '\0');
    for (int i = 0; i < count; ++i)
        bytes[i] = static_cast<char>(i % 251);
    return bytes;
}

} // namespace

/// The transfers of the program through the tool to a real server.
class TestScpBridge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString missing = SshServer::whatIsMissing();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing));
        QVERIFY(m_server.start());
        m_transfer.setSurroundings({[this](const ScpMessage &message) { m_messages.append(message); }, {}});
    }

    void init()
    {
        m_messages.clear();
        m_output.clear();
        m_options = {QStringLiteral(VENTARO_SCP_BRIDGE), kUser, kPassword, {}, {}};
        m_transfer.setOptions(m_options);
        qputenv("VENTARO_SCP_PORT", QByteArray::number(m_server.port()));
        qputenv("VENTARO_SCP_KNOWN_BOXES", knownBoxes().toLocal8Bit());
        qunsetenv("VENTARO_SCP_REFUSE_NEW_KEY");
    }

    void dayOfData()
    {
        const QStringList names{"08-00.bb"_s, "Schuß 2 [a]*.bb"_s, "q\"'\\n.bb"_s};
        const QByteArray all = bytesOf(100000); // several packets
        for (const QString &name : names)
            m_server.write("data/%1/%2"_s.arg(kDay, name), all + name.toUtf8(), kTime);
        m_server.write("data/dir-20240306/other.bb"_s, all);
        QDir(m_local.path()).mkpath(kDay); // as the program does
        QCOMPARE(m_transfer.fetch(kHost, kDay, m_local.path()), ScpOutcome::Done);
        const QDir day(m_local.filePath(kDay));
        QCOMPARE(QDir(m_local.path()).entryList({"dir-*"_s}, QDir::Dirs), QStringList{kDay});
        QCOMPARE(day.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), names.size());
        for (const QString &name : names) {
            QCOMPARE(contentOf(day.filePath(name)), all + name.toUtf8());
            QCOMPARE(QFileInfo(day.filePath(name)).lastModified(), kTime);
        }
    }

    void onlyWhatIsMissing()
    {
        const QString day = "dir-20240401"_s;
        const auto remote = [&day](const char *name) { return "data/%1/%2"_s.arg(day, QLatin1String(name)); };
        const auto local = [&](const char *name) { return m_local.filePath(day + u'/' + QLatin1String(name)); };
        for (const char *name : {"changed", "empty", "grown", "kept", "lost"})
            m_server.write(remote(name), QByteArray(name).left(*name == 'e' ? 0 : 9), kTime);
        m_server.write(remote("folder/inside"), "x");
        QFile::link("/etc/passwd"_s, m_server.stick().filePath(remote("link")));
        QCOMPARE(m_transfer.fetch(kHost, day, m_local.path(), watch()), ScpOutcome::Done);
        QCOMPARE(m_output, "5 files, 5 to fetch\n"_ba);
        QCOMPARE(QDir(local("")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 5);
        // Not fetched again, or this would be overwritten.
        QFile kept(local("kept"));
        QVERIFY(kept.open(QIODevice::WriteOnly) && kept.write("KEPT") == 4 && kept.flush());
        QVERIFY(kept.setFileTime(kTime, QFileDevice::FileModificationTime));
        QVERIFY(QFile::remove(local("lost")));
        writeFile(local("gone.1-1.part"), "a beginning of nothing");
        m_server.write(remote("changed"), "CHANGED", kTime.addSecs(1));
        m_server.write(remote("grown"), "grown more", kTime);
        m_output.clear();
        QCOMPARE(m_transfer.fetch(kHost, day, m_local.path(), watch()), ScpOutcome::Done);
        QCOMPARE(m_output, "5 files, 3 to fetch\n"_ba);
        const QByteArray all = contentOf(local("changed")) + contentOf(local("grown")) + contentOf(local("kept"))
                               + contentOf(local("lost"));
        QCOMPARE(all, "CHANGEDgrown moreKEPTlost"_ba);
        QCOMPARE(QDir(local("")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 5);
        QVERIFY(m_messages.isEmpty());
    }

    /// A file has its name only when it is complete, and the next run goes on with it.
    void brokenOffAndGoneOnWith()
    {
        const QByteArray content = bytesOf(48 << 20);
        m_server.write("data/dir-20240402/large.bb"_s, content, kTime);
        const QDir day(m_local.filePath("dir-20240402"_s));
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (partSize(day) > 0)
                m_transfer.cancel();
        });
        timer.start(1);
        QCOMPARE(m_transfer.fetch(kHost, day.dirName(), m_local.path()), ScpOutcome::Cancelled);
        timer.stop();
        QVERIFY(!day.exists("large.bb"_s));
        const qint64 begun = partSize(day);
        QVERIFY(begun > 0 && begun < content.size());
        QFile part(day.filePath(day.entryList({"*.part"_s}).value(0)));
        QVERIFY(part.open(QIODevice::ReadWrite)
                && part.write("mark") == 4); // shows that this part is not fetched again
        part.close();
        QCOMPARE(m_transfer.fetch(kHost, day.dirName(), m_local.path()), ScpOutcome::Done);
        const QByteArray arrived = contentOf(day.filePath("large.bb"_s));
        QCOMPARE(arrived.size(), content.size());
        QVERIFY(arrived.startsWith("mark") && arrived.mid(4) == content.mid(4));
        QCOMPARE(day.entryList(QDir::Files).size(), 1);
    }

    void manyFilesOverASlowLink()
    {
        const int count = qEnvironmentVariableIsSet("VENTARO_LONG_TESTS") ? 10000 : 2000;
        for (int i = 0; i < count; ++i)
            m_server.write("data/dir-20240403/%1.bb"_s.arg(i), bytesOf(2000 + i), kTime);
        DelayedLink link(m_server.port(), 3);
        QVERIFY(link.listen());
        qputenv("VENTARO_SCP_PORT", QByteArray::number(link.port()));
        const QDir day(m_local.filePath("dir-20240403"_s));
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(m_transfer.fetch(kHost, day.dirName(), m_local.path()), ScpOutcome::Done);
        qInfo() << count << "files in" << clock.elapsed() << "ms";
        QVERIFY(m_messages.isEmpty());
        for (int i = 0; i < count; ++i)
            QCOMPARE(contentOf(day.filePath("%1.bb"_s.arg(i))), bytesOf(2000 + i));
    }

    void changedKey_data()
    {
        columns<bool, ScpOutcome>("refuses", "outcome");
        row("announced", false, ScpOutcome::Done);
        row("refused", true, ScpOutcome::Failed);
    }

    void changedKey()
    {
        QFETCH(bool, refuses);
        QVERIFY(QFile::remove(knownBoxes()) || !QFile::exists(knownBoxes()));
        m_server.write("data/dir-20240404/a.bb"_s, "a", kTime);
        const auto fetch = [this] { return m_transfer.fetch(kHost, "dir-20240404"_s, m_local.path()); };
        QCOMPARE(fetch(), ScpOutcome::Done);
        const QByteArray before = contentOf(knownBoxes());
        QVERIFY(before.contains("ssh-ed25519"));
        QVERIFY(m_messages.isEmpty() && !m_transfer.hadNewKey());
        QVERIFY(m_server.restartWithNewKey());
        if (refuses)
            qputenv("VENTARO_SCP_REFUSE_NEW_KEY", "1");
        QTEST(fetch(), "outcome");
        QCOMPARE(m_transfer.hadNewKey(), !refuses);
        QCOMPARE(m_messages.size(), 1);
        const QString said = m_messages.front().text;
        QVERIFY2(said.contains(refuses ? "VENTARO_SCP_REFUSE_NEW_KEY"_s : "bisher: SHA256:"_s), qPrintable(said));
        QCOMPARE(contentOf(knownBoxes()) == before, refuses);
        QCOMPARE(fetch() == ScpOutcome::Done, !refuses); // said once, refused every time
        QCOMPARE(m_messages.size(), refuses ? 2 : 1);
    }

    void firmware()
    {
        const QDir folder(m_local.filePath("neue Firmware"_s));
        folder.mkpath("."_s);
        QFile archive(folder.filePath("box-8[ä].tgz"_s));
        QVERIFY(archive.open(QIODevice::WriteOnly));
        const QByteArray content(3000000, 'f');
        archive.write(content);
        archive.flush();
        QVERIFY(archive.setFileTime(kTime, QFileDevice::FileModificationTime));
        archive.close();
        QCOMPARE(m_transfer.upload(kHost, archive.fileName()), ScpOutcome::Done);
        const QString arrived = m_server.stick().filePath("box-8[ä].tgz"_s);
        QCOMPARE(contentOf(arrived), content);
        QCOMPARE(QFileInfo(arrived).lastModified(), kTime);
    }

    void failures_data()
    {
        // port: empty: the right one
        // file: empty: fetches a directory that is not there
        columns<QString, QByteArray, QString, QString>("password", "port", "file", "said");
        row("wrong password", "no", QByteArray(), QString(), "Permission denied");
        row("missing directory", kPassword, QByteArray(), QString(), "not found");
        row("missing file", kPassword, QByteArray(), "/not/there.tgz", "No such file");
        row("nobody listens", kPassword, "1"_ba, QString(), "refused");
        row("no port", kPassword, "22x"_ba, QString(), "no port");
    }

    void failures()
    {
        QFETCH(QByteArray, port);
        QFETCH(QString, file);
        QFETCH(QString, said);
        QFETCH(QString, password);
        m_options.password = password;
        m_transfer.setOptions(m_options);
        if (!port.isEmpty())
            qputenv("VENTARO_SCP_PORT", port);
        const ScpOutcome outcome =
            file.isEmpty() ? m_transfer.fetch(kHost, "dir-19990101"_s, m_local.path()) : m_transfer.upload(kHost, file);
        QCOMPARE(outcome, ScpOutcome::Failed);
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(m_messages.front().text.contains(said), qPrintable(m_messages.front().text));
    }

    void brokenConnection()
    {
        startLargeFetch();
        QTimer timer;
        bool shown = true;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (partSize(m_local.filePath("dir-20240501"_s)) > 0) {
                timer.stop();
                shown = processesShow(kPassword.toUtf8());
                m_server.killSessions();
            }
        });
        timer.start(10);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(m_transfer.fetch(kHost, "dir-20240501"_s, m_local.path()), ScpOutcome::Failed);
        QVERIFY2(clock.elapsed() < 8000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(m_messages.size(), 1);
        QVERIFY2(!shown, "a list of processes shows the password");
    }

    void endedWithItsTool()
    {
        startLargeFetch();
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (partSize(m_local.filePath("dir-20240501"_s)) > 0)
                m_transfer.cancel();
        });
        timer.start(10);
        QCOMPARE(m_transfer.fetch(kHost, "dir-20240501"_s, m_local.path()), ScpOutcome::Cancelled);
        // What the tool had started is gone too, or the file would go on growing.
        QTRY_VERIFY(!processesShow("pi@"_ba + kHost.toLatin1()));
        QVERIFY(m_messages.isEmpty());
    }

private:
    /// A gigabyte without a byte on the disk of the server.
    void startLargeFetch()
    {
        m_server.write("data/dir-20240501/large.bb"_s, "x");
        QVERIFY(QFile::resize(m_server.stick().filePath("data/dir-20240501/large.bb"_s), 1 << 30));
        QDir(m_local.filePath("dir-20240501"_s)).removeRecursively();
    }

    static qint64 partSize(const QDir &folder)
    {
        const QFileInfoList parts = folder.entryInfoList({"*.part"_s});
        return parts.isEmpty() ? -1 : parts.front().size();
    }

    [[nodiscard]] QString knownBoxes() const { return m_local.filePath("program data/known_boxes"_s); }

    [[nodiscard]] ScpTransfer::Watch watch()
    {
        return {[this](const QByteArray &bytes) { m_output += bytes; }, {}};
    }

    SshServer m_server{kUser, kPassword};
    QTemporaryDir m_local;
    ScpTransfer m_transfer;
    ScpTransfer::Options m_options;
    QVector<ScpMessage> m_messages;
    QByteArray m_output;
};

QTEST_GUILESS_MAIN(TestScpBridge)
#include "tst_scpbridge.moc"
