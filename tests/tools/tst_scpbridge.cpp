#include "device/scptransfer.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/sshserver.h"

namespace {

const QString kUser = "pi"_s;
const QString kPassword = "gEh3im@:x"_s;
const QString kHost = "127.0.0.1"_s;
const QString kDay = "dir-20240305"_s;
const QDateTime kTime({2024, 3, 5}, {10, 11, 12});

/// True if the command line of any process shows the text.
bool processesShow(const QByteArray &text)
{
    for (const QString &process : QDir("/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (process.toInt() > 0 && contentOf("/proc/%1/cmdline"_s.arg(process)).contains(text))
            return true;
    return false;
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
        m_options = {QStringLiteral(VENTARO_SCP_BRIDGE), kUser, kPassword, {}, {}};
        m_transfer.setOptions(m_options);
        qputenv("VENTARO_SCP_PORT", QByteArray::number(m_server.port()));
    }

    void dayOfData()
    {
        const QStringList names{"08-00.bb"_s, "Schuß 2 [a]*.bb"_s, "q\"'\\n.bb"_s};
        QByteArray all(256 * 100, '\0');
        for (int i = 0; i < all.size(); ++i)
            all[i] = static_cast<char>(i);
        for (const QString &name : names)
            m_server.write("data/%1/%2"_s.arg(kDay, name), all + name.toUtf8(), kTime);
        m_server.write("data/dir-20240306/other.bb"_s, all);
        QDir(m_local.path()).mkpath(kDay); // as the program does
        QCOMPARE(m_transfer.fetch(kHost, kDay, m_local.path()), ScpOutcome::Done);
        const QDir day(m_local.filePath(kDay));
        QCOMPARE(QDir(m_local.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{kDay});
        QCOMPARE(day.entryList(QDir::Files).size(), names.size());
        for (const QString &name : names) {
            QCOMPARE(contentOf(day.filePath(name)), all + name.toUtf8());
            QCOMPARE(QFileInfo(day.filePath(name)).lastModified(), kTime);
        }
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
            if (QFileInfo(m_local.filePath("dir-20240501/large.bb"_s)).size() > 0) {
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
        const QString target = m_local.filePath("dir-20240501/large.bb"_s);
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (QFileInfo(target).size() > 0)
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
        (void)QFile::remove(m_local.filePath("dir-20240501/large.bb"_s));
    }

    SshServer m_server{kUser, kPassword};
    QTemporaryDir m_local;
    ScpTransfer m_transfer;
    ScpTransfer::Options m_options;
    QVector<ScpMessage> m_messages;
};

QTEST_GUILESS_MAIN(TestScpBridge)
#include "tst_scpbridge.moc"
