#include "simulator/boxsimulator.h"
#include "simulator/boxtexts.h"
#include "simulator/commandline.h"

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

namespace {

BoxOptions quick()
{
    BoxOptions options;
    options.cycleSeconds = 0.2;
    options.rebootPause = 20;
    return options;
}

// A simulator and a plain client of it.
class Setup
{
public:
    explicit Setup(const BoxOptions &options = quick())
        : box(options)
    {
        const bool listening = box.listen();
        client.connectToHost(box.address(), box.port());
        connected = listening && QTest::qWaitFor([this] {
                        return box.hasClient() && client.state() == QAbstractSocket::ConnectedState;
                    });
        QObject::connect(&box, &BoxSimulator::sampleSent, &client,
                         [this](const QByteArray &line) { sent.append(line); });
    }

    void send(const QByteArray &commands)
    {
        client.write(commands);
        client.flush();
    }
    // All that arrived up to a text, or up to a time-out without it.
    [[nodiscard]] QByteArray receiveUntil(const QByteArray &text)
    {
        (void)QTest::qWaitFor([&] {
            received += client.readAll();
            return received.contains(text);
        });
        return received;
    }
    [[nodiscard]] QByteArray ask(const QByteArray &commands, const QByteArray &until)
    {
        received.clear();
        send(commands);
        return receiveUntil(until);
    }
    [[nodiscard]] bool waitForClose()
    {
        return QTest::qWaitFor([this] {
            received += client.readAll();
            return client.state() == QAbstractSocket::UnconnectedState;
        });
    }

    BoxSimulator box;
    QTcpSocket client;
    QByteArray received;
    QList<QByteArray> sent;
    bool connected = false;
};

} // namespace

class TestBoxSimulator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("ventaro.simulator*=false")); }
    void answersCommands_data();
    void answersCommands();
    void joinsACommandFromSegments();
    void streamsARun();
    void neverDrifts();
    void playsTheCycleFromTheStart();
    void dropsTheLinkAfterBytes_data();
    void dropsTheLinkAfterBytes();
    void reboots();
    void servesTheNewestClient();
    void logsItsRuns();
    void parsesTheCommandLine_data();
    void parsesTheCommandLine();
};

void TestBoxSimulator::answersCommands_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("stop") << QByteArray("run=0\n") << QByteArray("run=0\n");
    QTest::newRow("longest period") << QByteArray("t=1000\n") << QByteArray("t=1000\n");
    QTest::newRow("period too long") << QByteArray("t=1001\n") << QByteArray();
    QTest::newRow("no period") << QByteArray("t=abc\n") << QByteArray();
    QTest::newRow("device") << QByteArray("deviceDescription\n") << deviceDescriptionLine(false);
    QTest::newRow("sensors") << QByteArray("sensorDescription\n") << sensorDescriptionLine();
    QTest::newRow("list") << QByteArray("list\n") << listBlock();
    QTest::newRow("carriage return") << QByteArray("t=5\r\n") << QByteArray("t=5\n");
    QTest::newRow("unknown") << QByteArray("format c:\n") << QByteArray();
    QTest::newRow("empty") << QByteArray("\n\n \n") << QByteArray();
}

void TestBoxSimulator::answersCommands()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, answer);
    Setup setup;
    QVERIFY(setup.connected);
    QCOMPARE(setup.ask(command + "t=77\n", "t=77\n"), answer + "t=77\n");
    QCOMPARE(setup.box.receivedCommands().last(), QStringLiteral("t=77"));
    QCOMPARE(setup.box.period(), 77);
}

void TestBoxSimulator::joinsACommandFromSegments()
{
    Setup setup;
    for (const char *segment : {"t", "=2", "5", "\nru", "n=0\n"}) {
        setup.send(segment);
        QTest::qWait(2); // lets the segment arrive on its own
    }
    QCOMPARE(setup.receiveUntil("run=0\n"), QByteArray("t=25\nrun=0\n"));
}

void TestBoxSimulator::streamsARun()
{
    Setup setup;
    QSignalSpy running(&setup.box, &BoxSimulator::runningChanged);
    setup.send("t=1\nrun=1\n");
    QVERIFY(QTest::qWaitFor([&setup] { return setup.sent.size() >= 50; }));
    const QByteArray all = setup.ask("run=0\n", "run=0\n");
    QCOMPARE(running.size(), 2);
    QVERIFY(all.startsWith("t=1\nrun=1\n"));
    QCOMPARE(all, "t=1\nrun=1\n" + setup.sent.join() + "run=0\n");
    QCOMPARE(setup.box.shot(), 1);
    const auto settled = setup.sent.size();
    QTest::qWait(5);
    QCOMPARE(setup.sent.size(), settled);
}

// Work that holds up the event loop delays samples, but the next look at the clock makes up for all of them.
void TestBoxSimulator::neverDrifts()
{
    Setup setup;
    setup.send("t=1\nrun=1\n");
    QVERIFY(QTest::qWaitFor([&setup] { return !setup.sent.isEmpty(); }));
    QElapsedTimer elapsed;
    elapsed.start();
    for (int i = 0; i < 5; ++i) {
        QTest::qSleep(15);
        const qint64 before = elapsed.elapsed();
        QVERIFY(QTest::qWaitFor([&] { return setup.sent.size() >= before; }, 100));
        QVERIFY(setup.sent.size() <= elapsed.elapsed() + 20); // 20: what was due before the stop-watch here ran
    }
}

void TestBoxSimulator::playsTheCycleFromTheStart()
{
    Setup setup;
    setup.send("t=5\nrun=1\n");
    QVERIFY(QTest::qWaitFor([&setup] { return setup.sent.size() >= 60; }));
    const MouldCycle cycle(1, 0.2);
    for (int i = 0; i < 60; ++i)
        QCOMPARE(setup.sent.at(i), sampleLine(static_cast<quint64>(i), cycle.valuesAt(1, i * 0.005), false));
}

void TestBoxSimulator::dropsTheLinkAfterBytes_data()
{
    QTest::addColumn<int>("bytes");
    for (const int bytes : {0, 7, 100000})
        QTest::addRow("%d", bytes) << bytes;
}

void TestBoxSimulator::dropsTheLinkAfterBytes()
{
    QFETCH(int, bytes);
    BoxOptions options = quick();
    options.dropAfter = bytes;
    options.burst = 5000;
    Setup setup(options);
    QSignalSpy gone(&setup.box, &BoxSimulator::clientDisconnected);
    QSignalSpy running(&setup.box, &BoxSimulator::runningChanged);
    setup.send("t=1\nrun=1\n");
    QVERIFY(setup.waitForClose());
    QCOMPARE(setup.received.size(), bytes);
    QCOMPARE(gone.size(), 1);
    QVERIFY(!setup.box.isRunning());
    QVERIFY(running.isEmpty() || !running.last().first().toBool());
    setup.client.connectToHost(setup.box.address(), setup.box.port());
    QTRY_VERIFY(setup.box.hasClient()); // the next link is served again
}

void TestBoxSimulator::reboots()
{
    Setup setup;
    const quint16 port = setup.box.port();
    setup.send("t=1\nrun=1\nreboot\nlist\n");
    QVERIFY(setup.waitForClose());
    QVERIFY(!setup.box.isListening());
    QVERIFY(!setup.box.isRunning());
    QVERIFY(!setup.box.receivedCommands().contains(QStringLiteral("list")));
    QTRY_VERIFY(setup.box.isListening());
    QCOMPARE(setup.box.port(), port);
    setup.client.connectToHost(setup.box.address(), port);
    QTRY_VERIFY(setup.box.hasClient());
    QCOMPARE(setup.ask("t=5\n", "t=5\n"), QByteArray("t=5\n"));
}

void TestBoxSimulator::servesTheNewestClient()
{
    Setup setup;
    QTcpSocket second;
    second.connectToHost(setup.box.address(), setup.box.port());
    QVERIFY(setup.waitForClose());
    QTRY_COMPARE(second.state(), QAbstractSocket::ConnectedState);
    second.write("t=50\n");
    QTRY_COMPARE(second.bytesAvailable(), 5);
    QCOMPARE(second.readAll(), QByteArray("t=50\n"));
    QVERIFY(setup.received.isEmpty());
}

void TestBoxSimulator::logsItsRuns()
{
    const QTemporaryDir folder;
    BoxOptions options = quick();
    options.dataFolder = folder.filePath(QStringLiteral("stick"));
    Setup setup(options);
    QCOMPARE(setup.ask("list\n", "} list"), QByteArray("list {\n.\n..\n} list\n"));
    for (int run = 0; run < 2; ++run) {
        (void)setup.ask("t=2\nrun=1\n", "run=1\n");
        setup.sent.clear();
        QTRY_VERIFY(setup.sent.size() >= 5);
        (void)setup.ask("run=0\n", "run=0\n");
    }
    const QDir stick(options.dataFolder);
    const QStringList days = stick.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(setup.ask("list\n", "} list").contains("..\n" + days.join(QLatin1Char('\n')).toLatin1() + '\n'));
    const QDir day(stick.filePath(days.value(0)));
    QVERIFY(day.dirName() == QDate::currentDate().toString(QStringLiteral("'dir-'yyyyMMdd")) || days.size() > 1);
    const QStringList names = day.entryList({QStringLiteral("*.bb")}, QDir::Files);
    QVERIFY(names.size() == 2 || days.size() > 1);
    QFile file(day.filePath(names.last()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.startsWith("[device]\n") && text.contains("\ngroup0/sensor4/unit=") && text.endsWith("]\n"));
    QVERIFY(text.contains("\n[data]\nT=20"));
    // What went over the wire, in another notation.
    QByteArray expected = setup.sent.at(3).trimmed();
    expected = "\nA=[" + expected.mid(expected.indexOf(';') + 1).replace(';', ',') + "]\n";
    QVERIFY2(text.contains(expected), expected);
}

void TestBoxSimulator::parsesTheCommandLine_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("valid");
    for (const char *valid : {"", "--port 0", "--port 65535 --address 0.0.0.0", "--address ::1", "--seed 4294967295",
                              "--cycle 2.5 --repeat", "--burst 1000 --drop-after 0 --silence --garbage --long-lines",
                              "--project-description --no-sensor-description --reboot-pause 5"})
        QTest::newRow(valid) << QString::fromLatin1(valid) << true;
    for (const char *invalid :
         {"--port 65536", "--port -1", "--port x", "--port", "--port 1.5", "--address nowhere", "--seed -1",
          "--cycle 0", "--cycle nan", "--burst -1", "--drop-after x", "--drop-after -1", "--unknown", "extra"})
        QTest::newRow(invalid) << QString::fromLatin1(invalid) << false;
}

void TestBoxSimulator::parsesTheCommandLine()
{
    QFETCH(QString, arguments);
    const CommandLine line =
        parseCommandLine(QStringList(QStringLiteral("box")) + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QTEST(line.error.isEmpty(), "valid");
    if (arguments.contains(QLatin1String("--burst 1000"))) {
        QCOMPARE(line.box.burst, 1000);
        QCOMPARE(line.box.dropAfter, 0);
        QVERIFY(line.box.silent && line.box.garbage && line.box.longLines);
        QCOMPARE(line.port, 2222);
    }
}

QTEST_GUILESS_MAIN(TestBoxSimulator)
#include "tst_boxsimulator.moc"
