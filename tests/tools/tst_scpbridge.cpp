#include "device/scptransfer.h"
#include "tests/support/sshserver.h"

#include <QProcess>
#include <QtTest>

namespace {

const QString kUser = QStringLiteral("pi");
const QString kPassword = QStringLiteral("gEh3im@:x");
const QString kHost = QStringLiteral("127.0.0.1");
const QString kDay = QStringLiteral("dir-20240305");
const QDateTime kTime({2024, 3, 5}, {10, 11, 12});

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// True if the command line of any process shows the text.
bool processesShow(const QByteArray &text)
{
    for (const QString &process : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (process.toInt() > 0 && contentOf(QStringLiteral("/proc/%1/cmdline").arg(process)).contains(text))
            return true;
    return false;
}

} // namespace

/// The transfers of the program through the tool to a real server.
class TestScpBridge : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void dayOfData();
    void firmware();
    void separateArguments();
    void failures_data();
    void failures();
    void brokenConnection();
    void endedWithItsTool();

private:
    void startLargeFetch();

    SshServer m_server{kUser, kPassword};
    QTemporaryDir m_local;
    ScpTransfer m_transfer;
    ScpTransfer::Options m_options;
    QVector<ScpMessage> m_messages;
};

void TestScpBridge::initTestCase()
{
    const QString missing = SshServer::whatIsMissing();
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing));
    QVERIFY(m_server.start());
    m_transfer.setSurroundings({[this](const ScpMessage &message) { m_messages.append(message); }, {}});
}

void TestScpBridge::init()
{
    m_messages.clear();
    m_options = {QStringLiteral(VENTARO_SCP_BRIDGE), kUser, kPassword, {}, {}};
    m_transfer.setOptions(m_options);
    qputenv("VENTARO_SCP_PORT", QByteArray::number(m_server.port()));
}

void TestScpBridge::dayOfData()
{
    const QStringList names{QStringLiteral("08-00.bb"), QStringLiteral("Schuß 2 [a]*.bb"),
                            QStringLiteral("q\"'\\n.bb")};
    QByteArray all(256 * 100, '\0');
    for (int i = 0; i < all.size(); ++i)
        all[i] = static_cast<char>(i);
    for (const QString &name : names)
        m_server.write(QStringLiteral("data/%1/%2").arg(kDay, name), all + name.toUtf8(), kTime);
    m_server.write(QStringLiteral("data/dir-20240306/other.bb"), all);
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

void TestScpBridge::firmware()
{
    const QDir folder(m_local.filePath(QStringLiteral("neue Firmware")));
    folder.mkpath(QStringLiteral("."));
    QFile archive(folder.filePath(QStringLiteral("box-8[ä].tgz")));
    QVERIFY(archive.open(QIODevice::WriteOnly));
    const QByteArray content(3000000, 'f');
    archive.write(content);
    archive.flush();
    QVERIFY(archive.setFileTime(kTime, QFileDevice::FileModificationTime));
    archive.close();
    QCOMPARE(m_transfer.upload(kHost, archive.fileName()), ScpOutcome::Done);
    const QString arrived = m_server.stick().filePath(QStringLiteral("box-8[ä].tgz"));
    QCOMPARE(contentOf(arrived), content);
    QCOMPARE(QFileInfo(arrived).lastModified(), kTime);
}

void TestScpBridge::separateArguments()
{
    m_server.write(QStringLiteral("data/dir-20240401/a.bb"), "x");
    QProcess tool;
    tool.setWorkingDirectory(m_local.path());
    tool.start(m_options.toolFile,
               {QStringLiteral("/command"), QStringLiteral("open pi:%1@localhost -hostkey=* ").arg(kPassword),
                QStringLiteral("get -preservetime /media/usbstick/data/dir-20240401"), QStringLiteral("exit")});
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitCode(), 0);
    QCOMPARE(contentOf(m_local.filePath(QStringLiteral("dir-20240401/a.bb"))), QByteArray("x"));
}

void TestScpBridge::failures_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("port"); // empty: the right one
    QTest::addColumn<QString>("file");    // empty: fetches a directory that is not there
    QTest::addColumn<QString>("said");
    QTest::newRow("wrong password") << QStringLiteral("no") << QByteArray() << QString()
                                    << QStringLiteral("Permission denied");
    QTest::newRow("missing directory") << kPassword << QByteArray() << QString() << QStringLiteral("not found");
    QTest::newRow("missing file") << kPassword << QByteArray() << QStringLiteral("/not/there.tgz")
                                  << QStringLiteral("No such file");
    QTest::newRow("nobody listens") << kPassword << QByteArray("1") << QString() << QStringLiteral("refused");
    QTest::newRow("no port") << kPassword << QByteArray("22x") << QString() << QStringLiteral("no port");
}

void TestScpBridge::failures()
{
    QFETCH(QByteArray, port);
    QFETCH(QString, file);
    QFETCH(QString, said);
    QFETCH(QString, password);
    m_options.password = password;
    m_transfer.setOptions(m_options);
    if (!port.isEmpty())
        qputenv("VENTARO_SCP_PORT", port);
    const ScpOutcome outcome = file.isEmpty() ? m_transfer.fetch(kHost, QStringLiteral("dir-19990101"), m_local.path())
                                              : m_transfer.upload(kHost, file);
    QCOMPARE(outcome, ScpOutcome::Failed);
    QCOMPARE(m_messages.size(), 1);
    QVERIFY2(m_messages.front().text.contains(said), qPrintable(m_messages.front().text));
}

/// A gigabyte without a byte on the disk of the server.
void TestScpBridge::startLargeFetch()
{
    m_server.write(QStringLiteral("data/dir-20240501/large.bb"), "x");
    QVERIFY(QFile::resize(m_server.stick().filePath(QStringLiteral("data/dir-20240501/large.bb")), 1 << 30));
    (void)QFile::remove(m_local.filePath(QStringLiteral("dir-20240501/large.bb")));
}

void TestScpBridge::brokenConnection()
{
    startLargeFetch();
    QTimer timer;
    bool shown = true;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (QFileInfo(m_local.filePath(QStringLiteral("dir-20240501/large.bb"))).size() > 0) {
            timer.stop();
            shown = processesShow(kPassword.toUtf8());
            m_server.killSessions();
        }
    });
    timer.start(10);
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(m_transfer.fetch(kHost, QStringLiteral("dir-20240501"), m_local.path()), ScpOutcome::Failed);
    QVERIFY2(clock.elapsed() < 8000, qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(m_messages.size(), 1);
    QVERIFY2(!shown, "a list of processes shows the password");
}

void TestScpBridge::endedWithItsTool()
{
    startLargeFetch();
    const QString target = m_local.filePath(QStringLiteral("dir-20240501/large.bb"));
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (QFileInfo(target).size() > 0)
            m_transfer.cancel();
    });
    timer.start(10);
    QCOMPARE(m_transfer.fetch(kHost, QStringLiteral("dir-20240501"), m_local.path()), ScpOutcome::Cancelled);
    // What the tool had started is gone too, or the file would go on growing.
    QTRY_VERIFY(!processesShow(QByteArray("pi@") + kHost.toLatin1()));
    QVERIFY(m_messages.isEmpty());
}

QTEST_GUILESS_MAIN(TestScpBridge)
#include "tst_scpbridge.moc"
