#include "simulator/boxsimulator.h"
#include "simulator/boxtexts.h"
#include "simulator/commandline.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTcpSocket>
#include <QTemporaryDir>

namespace {

BoxOptions quick()
{
    BoxOptions options;
    options.cycleSeconds = 0.2;
    options.rebootPause = 20;
    return options;
}

// A simulator and a plain TCP client.
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
    // Everything received up to and including a text, or until the time-out.
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
    void initTestCase() { QLoggingCategory::setFilterRules("ventaro.simulator*=false"_s); }

    void answersCommands_data()
    {
        columns<QByteArray, QByteArray>("command", "answer");
        row("stop", "run=0\n"_ba, "run=0\n"_ba);
        row("longest period", "t=1000\n"_ba, "t=1000\n"_ba);
        row("period too long", "t=1001\n"_ba, QByteArray());
        row("no period", "t=abc\n"_ba, QByteArray());
        row("device", "deviceDescription\n"_ba, deviceDescriptionLine(false));
        row("sensors", "sensorDescription\n"_ba, sensorDescriptionLine());
        row("list", "list\n"_ba, listBlock());
        row("carriage return", "t=5\r\n"_ba, "t=5\n"_ba);
        row("unknown", "format c:\n"_ba, QByteArray());
        row("empty", "\n\n \n"_ba, QByteArray());
    }

    void answersCommands()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, answer);
        Setup setup;
        QVERIFY(setup.connected);
        QCOMPARE(setup.ask(command + "t=77\n", "t=77\n"), answer + "t=77\n");
        QCOMPARE(setup.box.receivedCommands().last(), "t=77"_s);
        QCOMPARE(setup.box.period(), 77);
    }

    void joinsACommandFromSegments()
    {
        Setup setup;
        for (const char *segment : {"t", "=2", "5", "\nru", "n=0\n"}) {
            setup.send(segment);
            QTest::qWait(2); // lets the segment arrive on its own
        }
        QCOMPARE(setup.receiveUntil("run=0\n"), "t=25\nrun=0\n"_ba);
    }

    void streamsARun()
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

    // Work that blocks the event loop delays samples, but the next tick sends all that are due.
    void neverDrifts()
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
            QVERIFY(setup.sent.size() <= elapsed.elapsed() + 20); // 20: what was due before this timer started
        }
    }

    void dropsTheLinkAfterBytes_data()
    {
        columns<int>("bytes");
        for (const int bytes : {0, 7, 100000})
            QTest::addRow("%d", bytes) << bytes;
    }

    void dropsTheLinkAfterBytes()
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

    void logsItsRuns()
    {
        const QTemporaryDir folder;
        BoxOptions options = quick();
        options.dataFolder = folder.filePath("stick"_s);
        Setup setup(options);
        QCOMPARE(setup.ask("list\n", "} list"), "list {\n.\n..\n} list\n"_ba);
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
        QVERIFY(day.dirName() == QDate::currentDate().toString("'dir-'yyyyMMdd"_s) || days.size() > 1);
        const QStringList names = day.entryList({"*.bb"_s}, QDir::Files);
        QVERIFY(names.size() == 2 || days.size() > 1);
        const QByteArray text = contentOf(day.filePath(names.last()));
        QVERIFY(text.startsWith("[device]\n") && text.contains("\ngroup0/sensor4/unit=") && text.endsWith("]\n"));
        QVERIFY(text.contains("\n[data]\nT=20"));
        // What went over the wire, in another notation.
        QByteArray expected = setup.sent.at(3).trimmed();
        expected = "\nA=[" + expected.mid(expected.indexOf(';') + 1).replace(';', ',') + "]\n";
        QVERIFY2(text.contains(expected), expected);
    }

    void parsesTheCommandLine_data()
    {
        columns<QString, bool>("arguments", "valid");
        for (const char *valid :
             {"", "--port 0", "--port 65535 --address 0.0.0.0", "--address ::1", "--seed 4294967295",
              "--cycle 2.5 --repeat", "--burst 1000 --drop-after 0 --silence --garbage --long-lines",
              "--project-description --no-sensor-description --reboot-pause 5"})
            row(valid, QString::fromLatin1(valid), true);
        for (const char *invalid :
             {"--port 65536", "--port -1", "--port x", "--port", "--port 1.5", "--address nowhere", "--seed -1",
              "--cycle 0", "--cycle nan", "--burst -1", "--drop-after x", "--drop-after -1", "--unknown", "extra"})
            row(invalid, QString::fromLatin1(invalid), false);
    }

    void parsesTheCommandLine()
    {
        QFETCH(QString, arguments);
        const CommandLine line =
            parseCommandLine(QStringList("box"_s) + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QTEST(line.error.isEmpty(), "valid");
        if (arguments.contains("--burst 1000"_s)) {
            QCOMPARE(line.box.burst, 1000);
            QCOMPARE(line.box.dropAfter, 0);
            QVERIFY(line.box.silent && line.box.garbage && line.box.longLines);
            QCOMPARE(line.port, 2222);
        }
    }
};

QTEST_GUILESS_MAIN(TestBoxSimulator)
#include "tst_boxsimulator.moc"
