#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "tests/support/faketool.h"
#include "tests/support/logcapture.h"

#include <QtTest>

Q_DECLARE_METATYPE(ScpOutcome)

namespace {

const QString kDay = QStringLiteral("dir-20240305");
const QString kHost = QStringLiteral("127.0.0.1");

/// A transfer with short waits and all that it told.
struct Rig
{
    explicit Rig(const QByteArray &script)
        : tool(script)
    {
        options.toolFile = tool.file();
        options.user = QStringLiteral("pi");
        options.password = QStringLiteral("secret");
        options.timeouts = {2000, 10000, 200};
        transfer.setOptions(options);
        transfer.setSurroundings({[this](const ScpMessage &message) { messages.append(message); },
                                  [this](bool waiting) { waits.append(waiting); }});
    }
    void setFinishTimeout(int milliseconds)
    {
        options.timeouts.finish = milliseconds;
        transfer.setOptions(options);
    }
    [[nodiscard]] ScpOutcome fetch() { return transfer.fetch(kHost, kDay, folder.path()); }

    FakeTool tool;
    QTemporaryDir folder;
    ScpTransfer::Options options;
    ScpTransfer transfer;
    QVector<ScpMessage> messages;
    QVector<bool> waits;
};

} // namespace

class TestScpTransfer : public QObject
{
    Q_OBJECT

private slots:
    void success();
    void endings_data();
    void endings();
    void missingTool();
    void floodIsReadAndCut();
    void eventsGoOn();
    void oneAtATime();
    void endedFromOutside_data();
    void endedFromOutside();
    void refusals();
    void uploadThroughTheConnector();
};

void TestScpTransfer::success()
{
    Rig rig("echo done");
    QCOMPARE(rig.fetch(), ScpOutcome::Done);
    QCOMPARE(rig.tool.arguments(),
             QStringList{QStringLiteral("/command \"open pi:secret@127.0.0.1 -hostkey=* \" \"get -preservetime "
                                        "/media/usbstick/data/dir-20240305\" \"exit\"")});
    QCOMPARE(rig.tool.folders(), QStringList{QDir(rig.folder.path()).canonicalPath()});
    QVERIFY(rig.messages.isEmpty());
    QCOMPARE(rig.waits, (QVector<bool>{true, false}));
}

void TestScpTransfer::endings_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<ScpOutcome>("outcome");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("logged");
    const auto problem = QStringLiteral("Problem");
    QTest::newRow("failure") << QByteArray("echo out; echo err >&2; exit 1") << ScpOutcome::Failed
                             << QStringLiteral("SCP Problem")
                             << QStringLiteral("SCP was NOT successful!!\n\nPlease check output:out\n\n*******\nerr\n")
                             << QStringLiteral("  StdErr:  err");
    QTest::newRow("crash") << QByteArray("kill -SEGV $$") << ScpOutcome::Crashed << problem
                           << QStringLiteral("The tool stopped!") << QStringLiteral("exit code: ");
    const QString late = QStringLiteral("SCP did not end (yet)!");
    QTest::newRow("hang") << QByteArray("exec sleep 30") << ScpOutcome::NotFinished << problem << late << QString();
    QTest::newRow("cannot be asked to end") << QByteArray("trap '' TERM; while :; do sleep 0.1; done")
                                            << ScpOutcome::NotFinished << problem << late << QString();
    QTest::newRow("endless output") << QByteArray("exec cat /dev/zero") << ScpOutcome::NotFinished << problem << late
                                    << QString();
}

void TestScpTransfer::endings()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, logged);
    Rig rig(script);
    rig.setFinishTimeout(400);
    const LogCapture log;
    QTEST(rig.fetch(), "outcome");
    QCOMPARE(rig.messages.size(), 1);
    QTEST(rig.messages.front().title, "title");
    QTEST(rig.messages.front().text, "text");
    QCOMPARE(rig.messages.front().isWarning, rig.messages.front().title == QStringLiteral("SCP Problem"));
    QCOMPARE(rig.waits, (QVector<bool>{true, false}));
    QVERIFY(!rig.tool.isRunning());
    QVERIFY(logged.isEmpty() || log.contains(logged));
    QCOMPARE(log.contains(QString(64, QLatin1Char('-'))), rig.messages.front().isWarning);
}

void TestScpTransfer::missingTool()
{
    Rig rig("");
    rig.options.toolFile = QStringLiteral("/not/there/R&D<1>/winscp.com");
    rig.transfer.setOptions(rig.options);
    QCOMPARE(rig.fetch(), ScpOutcome::NotStarted);
    QCOMPARE(rig.messages.size(), 1);
    const ScpMessage message = rig.messages.front();
    QCOMPARE(message.title, QStringLiteral("Problem"));
    const auto begin = QStringLiteral("The SCP tool could not be started!<br><br>Tool command: "
                                      "\\not\\there\\R&D<1>\\winscp.com /command \"open pi:");
    QCOMPARE(message.text.left(begin.size()), begin);
    QVERIFY(message.text.section(QStringLiteral("\"exit\"<br>Error: "), 1).size() > 5);
    QVERIFY(rig.waits.isEmpty());
}

void TestScpTransfer::floodIsReadAndCut()
{
    Rig rig("head -c 50000000 /dev/zero | tr '\\0' x; head -c 5000000 /dev/zero | tr '\\0' y >&2; exit 3");
    QCOMPARE(rig.fetch(), ScpOutcome::Failed);
    const QString text = rig.messages.value(0).text;
    QCOMPARE(text.count(QLatin1Char('x')), ChildScpProcess::kMaxOutput);
    QVERIFY(text.count(QLatin1Char('y')) >= ChildScpProcess::kMaxOutput);
    QVERIFY(text.size() < 3 * ChildScpProcess::kMaxOutput);
}

void TestScpTransfer::eventsGoOn()
{
    Rig rig("exec sleep 0.5");
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
    timer.start(20);
    const std::clock_t before = std::clock();
    QCOMPARE(rig.fetch(), ScpOutcome::Done);
    QVERIFY2(ticks >= 8, qPrintable(QString::number(ticks)));
    QVERIFY2(std::clock() - before < CLOCKS_PER_SEC / 4, "the wait takes processor time");
}

void TestScpTransfer::oneAtATime()
{
    Rig rig("exec sleep 0.4");
    ScpOutcome second = ScpOutcome::Done;
    QTimer::singleShot(100, this, [&] { second = rig.transfer.upload(kHost, QStringLiteral("/fw.tgz")); });
    QCOMPARE(rig.fetch(), ScpOutcome::Done);
    QCOMPARE(second, ScpOutcome::Refused);
    QCOMPARE(rig.messages.size(), 1);
    QCOMPARE(rig.tool.arguments().size(), 1);
    QVERIFY(!rig.transfer.isRunning());
}

void TestScpTransfer::endedFromOutside_data()
{
    QTest::addColumn<bool>("programEnds");
    QTest::newRow("cancelled") << false;
    QTest::newRow("program ends") << true;
}

void TestScpTransfer::endedFromOutside()
{
    QFETCH(bool, programEnds);
    Rig rig("exec sleep 30");
    ScpOutcome outcome = ScpOutcome::Done;
    QTimer::singleShot(0, this, [&] {
        outcome = rig.fetch();
        QCoreApplication::quit();
    });
    QTimer::singleShot(300, this, [&] { programEnds ? QCoreApplication::quit() : rig.transfer.cancel(); });
    QElapsedTimer clock;
    clock.start();
    QCoreApplication::exec();
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(outcome, ScpOutcome::Cancelled);
    QCOMPARE(rig.waits, (QVector<bool>{true, false}));
    QVERIFY(rig.messages.isEmpty());
    QVERIFY(!rig.tool.isRunning());
}

void TestScpTransfer::refusals()
{
    Rig rig("");
    QCOMPARE(rig.transfer.fetch(kHost, QStringLiteral("../dir-2024"), rig.folder.path()), ScpOutcome::Refused);
    QCOMPARE(rig.transfer.fetch(QStringLiteral("box -x"), kDay, rig.folder.path()), ScpOutcome::Refused);
    QCOMPARE(rig.transfer.fetch(QString(), kDay, rig.folder.path()), ScpOutcome::Refused);
    QCOMPARE(rig.transfer.upload(kHost, QStringLiteral("/fw/a \"exit\".tgz")), ScpOutcome::Refused);
    QCOMPARE(rig.messages.size(), 4);
    QVERIFY(rig.tool.arguments().isEmpty());
    rig.options.defaultAddress = QStringLiteral("192.168.4.1");
    rig.transfer.setOptions(rig.options);
    QCOMPARE(rig.transfer.fetch(QString(), kDay, rig.folder.path()), ScpOutcome::Done);
    QVERIFY(rig.tool.arguments().value(0).contains(QStringLiteral("@192.168.4.1 ")));
}

void TestScpTransfer::uploadThroughTheConnector()
{
    Rig rig("case \"$1\" in *bad*) exit 1;; esac");
    MesotraConnector connector(1); // nobody listens there; the address counts all the same
    connector.connect(kHost);
    connector.scp().setOptions(rig.options);
    QVERIFY(connector.transferUpdateFile(QStringLiteral("/my files/box-8.tgz")) == false); // no such folder to run in
    QVERIFY(connector.transferUpdateFile(rig.folder.filePath(QStringLiteral("box-8.tgz"))));
    QVERIFY(!connector.transferUpdateFile(rig.folder.filePath(QStringLiteral("bad.tgz"))));
    QCOMPARE(rig.tool.arguments().value(0),
             QStringLiteral("/command \"open pi:secret@127.0.0.1 -hostkey=* \" \"put -preservetime %1/box-8.tgz "
                            "/media/usbstick/\" \"exit\"")
                 .arg(rig.folder.path()));
}

QTEST_GUILESS_MAIN(TestScpTransfer)
#include "tst_scptransfer.moc"
