#include "device/mesotraconnector.h"
#include "tests/device/link.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"

#include <QEventLoop>
#include <QLoggingCategory>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

namespace {

QStringList texts(std::initializer_list<const char *> latin1)
{
    QStringList list;
    for (const char *text : latin1)
        list.append(QString::fromLatin1(text));
    return list;
}

// Everything logged during its lifetime, the device category switched on.
class DeviceLog : public LogCapture
{
public:
    DeviceLog() { QLoggingCategory::setFilterRules("ventaro.device.debug=true"_s); }
    ~DeviceLog() { QLoggingCategory::setFilterRules("ventaro.device.debug=false"_s); }
    Q_DISABLE_COPY_MOVE(DeviceLog)
};

QByteArray numberedLines(int count)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += QByteArray::number(i) + ";1.5;2.5;3.5;4.5;5.5\n";
    return lines;
}

} // namespace

class TestMesotraConnector : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("ventaro.device.debug=false"_s); }

    void deliversLines_data()
    {
        columns<QByteArray, QStringList>("sent", "messages");
        const QString longPart(1023, QLatin1Char('a'));
        row("one", "x\n"_ba, texts({"x\n"}));
        row("lone line feeds", "\n\n\nx\n\n"_ba, texts({"x\n"}));
        row("carriage return stays", "x\r\n"_ba, texts({"x\r\n"}));
        row("NUL bytes", QByteArray("a\0b\n\0\n", 6),
            QStringList{QString::fromLatin1("a\0b\n", 4), QString::fromLatin1("\0\n", 2)});
        row("UTF-8 arrives byte by byte",
            "\xC2\xB0"
            "C\xFF\n"_ba,
            QStringList{"Â°Cÿ\n"_s});
        row("1022 characters", QByteArray(1022, 'a') + '\n', QStringList{longPart.chopped(1) + QLatin1Char('\n')});
        // The line feed alone in its piece is dropped like any lone line feed.
        row("1023 characters", QByteArray(1023, 'a') + '\n', QStringList{longPart});
        row("1024 characters", QByteArray(1024, 'a') + '\n', QStringList{longPart, "a\n"_s});
        row("2500 characters", QByteArray(2500, 'a') + '\n',
            QStringList{longPart, longPart, QString(454, QLatin1Char('a')) + QLatin1Char('\n')});
        row("no line feed yet", "1\n2"_ba, texts({"1\n"}));
    }

    void deliversLines()
    {
        QFETCH(QByteArray, sent);
        QFETCH(QStringList, messages);
        Link link;
        QVERIFY(link.open());
        link.send(sent + (sent.endsWith('\n') ? "end\n" : ""));
        QVERIFY(link.waitFor(sent.endsWith('\n') ? "end\n"_s : messages.last()));
        if (sent.endsWith('\n'))
            messages.append("end\n"_s);
        QCOMPARE(link.events, texts({"[up]"}) + messages);
    }

    void joinsALineFromSegments()
    {
        Link link;
        QVERIFY(link.open());
        for (const char *segment : {"1;2", ";3", "\n4;5;6", "\n"}) {
            QSignalSpy written(link.peer, &QTcpSocket::bytesWritten);
            link.send(segment);
            QTest::qWait(2); // lets the segment arrive on its own
        }
        QVERIFY(link.waitFor("4;5;6\n"_s));
        QCOMPARE(link.events, (texts({"[up]", "1;2;3\n", "4;5;6\n"})));
    }

    void sendsNothingWhileClosed()
    {
        DeviceLog log;
        MesotraConnector connector;
        QSignalSpy written(&connector, &MesotraConnector::written);
        QVERIFY(!connector.write("run=0\n"_s));
        QVERIFY(log.contains("ERROR in tcpSocket.write() !!! s=run=0\n"_s));
        connector.startMeasurement();
        QVERIFY(written.isEmpty());
        connector.connect(Link::loopback()); // what is written on the way must not go out when the link comes up
        connector.setClock("100ms"_s);
        QVERIFY(!log.contains("setClock"_s));
        QVERIFY(!connector.write("run=1\n"_s));
    }

    void dropsAnEndlessLine()
    {
        Link link;
        QVERIFY(link.open());
        DeviceLog log;
        link.send("first\n" + QByteArray(2 * MesotraConnector::kMaxUnterminated, 'x'));
        QVERIFY(link.waitFor("[error %1]"_s.arg(QAbstractSocket::UnknownSocketError)));
        QCOMPARE(link.events, texts({"[up]", "first\n", "[down]"}) + link.events.mid(3));
        QVERIFY(log.contains("no line feed within"_s));
        QVERIFY(!link.connector->isConnected());
        QTRY_COMPARE(link.peer->state(), QAbstractSocket::UnconnectedState);
        QVERIFY(link.open()); // and a new link works
    }

    // The first line is held until the whole burst has arrived, so that the connector has all of it to deliver at once.
    void deliversABurstWithoutStarvingTheLoop()
    {
        constexpr int kLines = 600000;
        Link link;
        QVERIFY(link.open());
        link.events.clear();
        const QByteArray lines = numberedLines(kLines);
        const auto *socket = link.connector->findChild<QTcpSocket *>();
        link.reaction = [&](const QString &first) {
            link.reaction = nullptr;
            QVERIFY(QTest::qWaitFor([&] { return socket->bytesAvailable() == lines.size() - first.size(); }));
        };
        QTimer timer;
        int linesAtTick = 0;
        int mostBetweenTicks = 0;
        const auto tick = [&] {
            mostBetweenTicks = std::max(mostBetweenTicks, static_cast<int>(link.events.size()) - linesAtTick);
            linesAtTick = static_cast<int>(link.events.size());
        };
        QObject::connect(&timer, &QTimer::timeout, &timer, tick);
        timer.start(5);
        link.send(lines);
        QVERIFY(link.waitFor("%1;1.5;2.5;3.5;4.5;5.5\n"_s.arg(kLines - 1)));
        tick();
        QVERIFY(link.events.mid(0, kLines).join(QString()) == QString::fromLatin1(numberedLines(kLines)));
        QVERIFY2(mostBetweenTicks < kLines / 2, qPrintable(QString::number(mostBetweenTicks)));
    }

    void deliversEverythingBeforeTheEnd()
    {
        constexpr int kLines = 50000;
        Link link;
        QVERIFY(link.open());
        link.events.clear();
        link.send(numberedLines(kLines) + "incomplete");
        link.peer->disconnectFromHost();
        QVERIFY(link.waitFor("[error %1]"_s.arg(QAbstractSocket::RemoteHostClosedError)));
        QVERIFY(link.events.mid(0, kLines).join(QString()) == QString::fromLatin1(numberedLines(kLines)));
        QCOMPARE(link.events.mid(kLines), texts({"[down]"}) + link.events.mid(kLines + 1));
        QVERIFY(!link.connector->isConnected());
    }

    void holdsLinesWhileASlotShowsADialog()
    {
        Link link;
        QVERIFY(link.open());
        QStringList duringDialog;
        link.reaction = [&](const QString &event) {
            if (event != "ask\n"_s)
                return;
            link.send("2\n3\n");
            link.peer->disconnectFromHost();
            QEventLoop dialog;
            QTimer::singleShot(30, &dialog, &QEventLoop::quit);
            dialog.exec();
            duringDialog = link.events;
        };
        link.send("ask\n1\n");
        QVERIFY(link.waitFor("[error %1]"_s.arg(QAbstractSocket::RemoteHostClosedError)));
        QCOMPARE(duringDialog, (texts({"[up]", "ask\n"})));
        QCOMPARE(link.events.mid(0, 6), (texts({"[up]", "ask\n", "1\n", "2\n", "3\n", "[down]"})));
    }

    void reconnectsFromASlot_data()
    {
        columns<QString>("trigger");
        row("line", "x\n");
        row("end of the link", "[down]");
        row("error", "[error %1]"_s.arg(QAbstractSocket::RemoteHostClosedError));
    }

    // As the program does it: a dialog first, then a new attempt while the old link's signal is still being handled.
    void reconnectsFromASlot()
    {
        QFETCH(QString, trigger);
        Link link;
        QVERIFY(link.open());
        link.reaction = [&](const QString &event) {
            if (event != trigger)
                return;
            link.reaction = nullptr;
            QTest::qWait(5);
            link.connector->connect(Link::loopback());
        };
        link.send("x\n");
        QTRY_VERIFY(link.events.contains("x\n"_s));
        if (trigger != "x\n"_s)
            link.peer->disconnectFromHost();
        QVERIFY(link.waitFor("[up]"_s));
        QTest::qWait(5);
        QVERIFY(link.connector->isConnected());
        QVERIFY(link.open()); // takes the newest peer
        link.send("y\n");
        QVERIFY(link.waitFor("y\n"_s));
        QCOMPARE(link.events.count("x\n"_s), 1);
    }

    void disconnectsFromASlot()
    {
        Link link;
        QVERIFY(link.open());
        link.reaction = [&link](const QString &event) {
            if (event == "1\n"_s)
                link.connector->disconnectFromHost();
        };
        link.send("1\n2\n");
        QTRY_COMPARE(link.peer->state(), QAbstractSocket::UnconnectedState);
        QCOMPARE(link.events, (texts({"[up]", "1\n", "[down]"})));
        QVERIFY(!link.connector->write("1\n"_s));
    }

    void isDeletedFromASlot_data()
    {
        columns<QString>("trigger");
        for (const char *trigger : {"[up]", "x\n", "[down]"})
            row(trigger, QString::fromLatin1(trigger));
        row("error", "[error %1]"_s.arg(QAbstractSocket::RemoteHostClosedError));
    }

    void isDeletedFromASlot()
    {
        QFETCH(QString, trigger);
        Link link;
        link.reaction = [&](const QString &event) {
            if (event == trigger)
                link.connector.reset();
        };
        link.connector->connect(Link::loopback());
        QTRY_VERIFY(link.server.hasPendingConnections());
        link.peer = link.server.nextPendingConnection();
        link.send("x\ny\n");
        link.peer->disconnectFromHost();
        QTRY_VERIFY(!link.connector);
        QTest::qWait(2);
        QCOMPARE(link.events.last(), trigger);
    }

    void reconnectsWhileConnected()
    {
        Link link;
        QVERIFY(link.open());
        QTcpSocket *first = link.peer;
        link.send("old\nhalf a li");
        QVERIFY(link.waitFor("old\n"_s));
        QTest::qWait(2);
        link.peer = nullptr;
        QVERIFY(link.open());
        link.send("new\n");
        QVERIFY(link.waitFor("new\n"_s));
        QCOMPARE(link.events, (texts({"[up]", "old\n", "[down]", "[up]", "new\n"})));
        QTRY_COMPARE(first->state(), QAbstractSocket::UnconnectedState);
    }

    void forgetsTheErrorOfAnAbortedAttempt()
    {
        Link closed;
        closed.server.close();
        Link link;
        MesotraConnector connector(link.server.serverPort());
        QSignalSpy errors(&connector, &MesotraConnector::error);
        QSignalSpy connected(&connector, &MesotraConnector::connected);
        for (const char *unreachable : {"127.255.255.254", "nosuchhost.invalid", "", "nosuchhost.invalid"}) {
            connector.connect(QString::fromLatin1(unreachable));
            connector.connect(Link::loopback());
        }
        QVERIFY(connected.wait());
        QTest::qWait(10);
        QCOMPARE(errors.size(), 0);
        QCOMPARE(connected.size(), 1);
        QVERIFY(connector.isConnected());
    }
};

QTEST_GUILESS_MAIN(TestMesotraConnector)
#include "tst_mesotraconnector.moc"
