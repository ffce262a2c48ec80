#include "device/mesotraconnector.h"
#include "tests/device/link.h"
#include "tests/support/logcapture.h"

#include <QEventLoop>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include <functional>
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
    DeviceLog() { QLoggingCategory::setFilterRules(QStringLiteral("ventaro.device.debug=true")); }
    ~DeviceLog() { QLoggingCategory::setFilterRules(QStringLiteral("ventaro.device.debug=false")); }
    Q_DISABLE_COPY_MOVE(DeviceLog)
};

QByteArray numberedLines(int count)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += QByteArray::number(i) + ";1.5;2.5;3.5;4.5;5.5\n";
    return lines;
}

bool areNumbered(const QStringList &lines, int count)
{
    for (int i = 0; i < count; ++i) {
        if (i >= lines.size() || lines.at(i) != QStringLiteral("%1;1.5;2.5;3.5;4.5;5.5\n").arg(i))
            return false;
    }
    return true;
}

} // namespace

class TestMesotraConnector : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("ventaro.device.debug=false")); }
    void deliversLines_data();
    void deliversLines();
    void joinsALineFromSegments();
    void sendsCommands_data();
    void sendsCommands();
    void sendsNothingWhileClosed();
    void reportsARefusedConnection();
    void dropsAnEndlessLine();
    void deliversABurstWithoutStarvingTheLoop();
    void deliversEverythingBeforeTheEnd();
    void holdsLinesWhileASlotShowsADialog();
    void reconnectsFromASlot_data();
    void reconnectsFromASlot();
    void disconnectsFromASlot();
    void isDeletedFromASlot_data();
    void isDeletedFromASlot();
    void reconnectsWhileConnected();
    void forgetsTheErrorOfAnAbortedAttempt();
};

void TestMesotraConnector::deliversLines_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QStringList>("messages");
    const QString longPart(1023, QLatin1Char('a'));
    QTest::newRow("one") << QByteArray("x\n") << texts({"x\n"});
    QTest::newRow("lone line feeds") << QByteArray("\n\n\nx\n\n") << texts({"x\n"});
    QTest::newRow("carriage return stays") << QByteArray("x\r\n") << texts({"x\r\n"});
    QTest::newRow("NUL bytes") << QByteArray("a\0b\n\0\n", 6)
                               << QStringList{QString::fromLatin1("a\0b\n", 4), QString::fromLatin1("\0\n", 2)};
    QTest::newRow("UTF-8 arrives byte by byte") << QByteArray("\xC2\xB0"
                                                              "C\xFF\n")
                                                << QStringList{QStringLiteral("Â°Cÿ\n")};
    QTest::newRow("1022 characters") << QByteArray(1022, 'a') + '\n'
                                     << QStringList{longPart.chopped(1) + QLatin1Char('\n')};
    // The line feed alone in its piece is dropped like any lone line feed.
    QTest::newRow("1023 characters") << QByteArray(1023, 'a') + '\n' << QStringList{longPart};
    QTest::newRow("1024 characters") << QByteArray(1024, 'a') + '\n' << QStringList{longPart, QStringLiteral("a\n")};
    QTest::newRow("2500 characters") << QByteArray(2500, 'a') + '\n'
                                     << QStringList{longPart, longPart,
                                                    QString(454, QLatin1Char('a')) + QLatin1Char('\n')};
    QTest::newRow("no line feed yet") << QByteArray("1\n2") << texts({"1\n"});
}

void TestMesotraConnector::deliversLines()
{
    QFETCH(QByteArray, sent);
    QFETCH(QStringList, messages);
    Link link;
    QVERIFY(link.open());
    link.send(sent + (sent.endsWith('\n') ? "end\n" : ""));
    QVERIFY(link.waitFor(sent.endsWith('\n') ? QStringLiteral("end\n") : messages.last()));
    if (sent.endsWith('\n'))
        messages.append(QStringLiteral("end\n"));
    QCOMPARE(link.events, texts({"[up]"}) + messages);
}

void TestMesotraConnector::joinsALineFromSegments()
{
    Link link;
    QVERIFY(link.open());
    for (const char *segment : {"1;2", ";3", "\n4;5;6", "\n"}) {
        QSignalSpy written(link.peer, &QTcpSocket::bytesWritten);
        link.send(segment);
        QTest::qWait(2); // lets the segment arrive on its own
    }
    QVERIFY(link.waitFor(QStringLiteral("4;5;6\n")));
    QCOMPARE(link.events, (texts({"[up]", "1;2;3\n", "4;5;6\n"})));
}

void TestMesotraConnector::sendsCommands_data()
{
    using Command = std::function<void(MesotraConnector &)>;
    QTest::addColumn<Command>("command");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const Command &command, const QByteArray &bytes) {
        QTest::newRow(name) << command << bytes;
    };
    row("start", &MesotraConnector::startMeasurement, "run=1\n");
    row(
        "written", [](MesotraConnector &c) { c.write(QStringLiteral("list\n")); }, "list\n");
    row(
        "clock", [](MesotraConnector &c) { c.setClock(QStringLiteral("250ms")); }, "t=250\n");
    row(
        "unknown clock", [](MesotraConnector &c) { c.setClock(QStringLiteral("2ms")); }, "");
}

Q_DECLARE_METATYPE(std::function<void(MesotraConnector &)>)

void TestMesotraConnector::sendsCommands()
{
    QFETCH(std::function<void(MesotraConnector &)>, command);
    QFETCH(QByteArray, bytes);
    Link link;
    QVERIFY(link.open());
    QSignalSpy written(link.connector.get(), &MesotraConnector::written);
    command(*link.connector);
    QCOMPARE(written.size(), bytes.isEmpty() ? 0 : 1);
    if (!bytes.isEmpty())
        QCOMPARE(written.first().first().toString(), QString::fromLatin1(bytes));
    QVERIFY(link.connector->write(QStringLiteral("end\n")));
    QCOMPARE(link.receivedBytes(bytes.size() + 4), bytes + "end\n");
}

void TestMesotraConnector::sendsNothingWhileClosed()
{
    DeviceLog log;
    MesotraConnector connector;
    QSignalSpy written(&connector, &MesotraConnector::written);
    QVERIFY(!connector.write(QStringLiteral("run=0\n")));
    QVERIFY(log.contains(QStringLiteral("ERROR in tcpSocket.write() !!! s=run=0\n")));
    connector.startMeasurement();
    QVERIFY(written.isEmpty());
    connector.connect(Link::loopback()); // what is written on the way must not go out when the link comes up
    connector.setClock(QStringLiteral("100ms"));
    QVERIFY(!log.contains(QStringLiteral("setClock")));
    QVERIFY(!connector.write(QStringLiteral("run=1\n")));
}

void TestMesotraConnector::reportsARefusedConnection()
{
    Link link;
    link.server.close();
    link.connector->connect(Link::loopback());
    QVERIFY(link.waitFor(QStringLiteral("[error %1]").arg(QAbstractSocket::ConnectionRefusedError)));
    QCOMPARE(link.events.size(), 1);
    QCOMPARE(link.connector->hostAddress(), Link::loopback());
    QVERIFY(!link.connector->write(QStringLiteral("1\n")));
}

void TestMesotraConnector::dropsAnEndlessLine()
{
    Link link;
    QVERIFY(link.open());
    DeviceLog log;
    link.send("first\n" + QByteArray(2 * MesotraConnector::kMaxUnterminated, 'x'));
    QVERIFY(link.waitFor(QStringLiteral("[error %1]").arg(QAbstractSocket::UnknownSocketError)));
    QCOMPARE(link.events, texts({"[up]", "first\n", "[down]"}) + link.events.mid(3));
    QVERIFY(log.contains(QStringLiteral("no line feed within")));
    QVERIFY(!link.connector->isConnected());
    QTRY_COMPARE(link.peer->state(), QAbstractSocket::UnconnectedState);
    QVERIFY(link.open()); // and a new link works
}

// The first line is held until the whole burst has arrived, so that the connector has all of it to deliver at once.
void TestMesotraConnector::deliversABurstWithoutStarvingTheLoop()
{
    constexpr int kLines = 200000;
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
    QVERIFY(link.waitFor(QStringLiteral("%1;1.5;2.5;3.5;4.5;5.5\n").arg(kLines - 1)));
    tick();
    QVERIFY(areNumbered(link.events, kLines));
    QVERIFY2(mostBetweenTicks < kLines / 2, qPrintable(QString::number(mostBetweenTicks)));
}

void TestMesotraConnector::deliversEverythingBeforeTheEnd()
{
    constexpr int kLines = 50000;
    Link link;
    QVERIFY(link.open());
    link.events.clear();
    link.send(numberedLines(kLines) + "incomplete");
    link.peer->disconnectFromHost();
    QVERIFY(link.waitFor(QStringLiteral("[error %1]").arg(QAbstractSocket::RemoteHostClosedError)));
    QVERIFY(areNumbered(link.events, kLines));
    QCOMPARE(link.events.mid(kLines), texts({"[down]"}) + link.events.mid(kLines + 1));
    QVERIFY(!link.connector->isConnected());
}

void TestMesotraConnector::holdsLinesWhileASlotShowsADialog()
{
    Link link;
    QVERIFY(link.open());
    QStringList duringDialog;
    link.reaction = [&](const QString &event) {
        if (event != QLatin1String("ask\n"))
            return;
        link.send("2\n3\n");
        link.peer->disconnectFromHost();
        QEventLoop dialog;
        QTimer::singleShot(30, &dialog, &QEventLoop::quit);
        dialog.exec();
        duringDialog = link.events;
    };
    link.send("ask\n1\n");
    QVERIFY(link.waitFor(QStringLiteral("[error %1]").arg(QAbstractSocket::RemoteHostClosedError)));
    QCOMPARE(duringDialog, (texts({"[up]", "ask\n"})));
    QCOMPARE(link.events.mid(0, 6), (texts({"[up]", "ask\n", "1\n", "2\n", "3\n", "[down]"})));
}

void TestMesotraConnector::reconnectsFromASlot_data()
{
    QTest::addColumn<QString>("trigger");
    QTest::newRow("line") << "x\n";
    QTest::newRow("end of the link") << "[down]";
    QTest::newRow("error") << QStringLiteral("[error %1]").arg(QAbstractSocket::RemoteHostClosedError);
}

// As the program does it: a dialog first, then a new attempt while the old link's signal is still being handled.
void TestMesotraConnector::reconnectsFromASlot()
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
    QTRY_VERIFY(link.events.contains(QStringLiteral("x\n")));
    if (trigger != QLatin1String("x\n"))
        link.peer->disconnectFromHost();
    QVERIFY(link.waitFor(QStringLiteral("[up]")));
    QTest::qWait(5);
    QVERIFY(link.connector->isConnected());
    QVERIFY(link.open()); // takes the newest peer
    link.send("y\n");
    QVERIFY(link.waitFor(QStringLiteral("y\n")));
    QCOMPARE(link.events.count(QStringLiteral("x\n")), 1);
}

void TestMesotraConnector::disconnectsFromASlot()
{
    Link link;
    QVERIFY(link.open());
    link.reaction = [&link](const QString &event) {
        if (event == QLatin1String("1\n"))
            link.connector->disconnectFromHost();
    };
    link.send("1\n2\n");
    QTRY_COMPARE(link.peer->state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(link.events, (texts({"[up]", "1\n", "[down]"})));
    QVERIFY(!link.connector->write(QStringLiteral("1\n")));
}

void TestMesotraConnector::isDeletedFromASlot_data()
{
    QTest::addColumn<QString>("trigger");
    for (const char *trigger : {"[up]", "x\n", "[down]"})
        QTest::newRow(trigger) << QString::fromLatin1(trigger);
    QTest::newRow("error") << QStringLiteral("[error %1]").arg(QAbstractSocket::RemoteHostClosedError);
}

void TestMesotraConnector::isDeletedFromASlot()
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

void TestMesotraConnector::reconnectsWhileConnected()
{
    Link link;
    QVERIFY(link.open());
    QTcpSocket *first = link.peer;
    link.send("old\nhalf a li");
    QVERIFY(link.waitFor(QStringLiteral("old\n")));
    QTest::qWait(2);
    link.peer = nullptr;
    QVERIFY(link.open());
    link.send("new\n");
    QVERIFY(link.waitFor(QStringLiteral("new\n")));
    QCOMPARE(link.events, (texts({"[up]", "old\n", "[down]", "[up]", "new\n"})));
    QTRY_COMPARE(first->state(), QAbstractSocket::UnconnectedState);
}

void TestMesotraConnector::forgetsTheErrorOfAnAbortedAttempt()
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

QTEST_GUILESS_MAIN(TestMesotraConnector)
#include "tst_mesotraconnector.moc"
