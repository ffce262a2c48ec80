#include "linkrig.h"

#include "device/mesotraconnector.h"
#include "tests/support/faketool.h"
#include "tests/support/rows.h"
#include "view/blackbox/tabblackbox.h"
#include "view/home/recentbutton.h"

#include <QSettings>
#include <QTcpServer>
#include <QTemporaryDir>

namespace {

constexpr int kPeriod = 5; // ms

QStringList remembered()
{
    return QSettings("Tarnwald"_s, "Ventaro"_s).value("recentAddresses"_s).toStringList();
}

} // namespace

class TestLink : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings("Tarnwald"_s, "Ventaro"_s).clear(); }

    /// What a network does to a link that lives: nothing is lost, nobody is bothered with a dialog.
    void livingLink_data()
    {
        columns<QByteArray, QString>("disturbance", "head");
        row("a short stall towards the program", QByteArray("stall program"), "keine Daten seit 0 s");
        row("a short stall both ways", QByteArray("stall both"), "keine Daten seit 0 s");
        row("a delay", QByteArray("delay"), "Aufzeichnung läuft");
        row("lines in pieces", QByteArray("pieces"), "Aufzeichnung läuft");
    }

    void livingLink()
    {
        QFETCH(QByteArray, disturbance);
        QFETCH(QString, head);
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(20));
        if (disturbance == "delay")
            rig.proxy.setDelay(150);
        else if (disturbance == "pieces")
            rig.proxy.setPiece(3);
        else
            rig.proxy.stall(true, disturbance == "stall both");
        QTRY_COMPARE(rig.head(), head);
        QTest::qWait(100);
        rig.proxy.stall();
        const int before = rig.newest();
        QTRY_VERIFY(rig.newest() > before + 100);
        QTRY_COMPARE(rig.head(), "Aufzeichnung läuft"_s);
        emit rig.bench.view.startStopRecording();
        QTRY_VERIFY(!rig.bench.controller.isRecordingRunning());
        QCOMPARE(rig.stored(), rig.sent);
        QCOMPARE(rig.bench.shots(), 1);
        QVERIFY2(rig.bench.model.projectMeta().missing(0) == 0, "what is late is not missing");
        QVERIFY(rig.bench.prompts->messages.empty());
        QCOMPARE(rig.proxy.links(), 1);
    }

    /// Links that end: the program is back by itself, goes on in a fresh shot if it recorded, with the same period.
    void lostLink_data()
    {
        columns<QByteArray, bool>("how", "recording");
        row("closed while recording", QByteArray("soft"), true);
        row("broken while recording", QByteArray("hard"), true);
        row("cut within a line", QByteArray("cut"), true);
        row("stalled both ways", QByteArray("stall"), true);
        row("the box restarts", QByteArray("reboot"), true);
        row("closed while idle", QByteArray("soft"), false);
        row("broken while idle", QByteArray("hard"), false);
    }

    void lostLink()
    {
        QFETCH(QByteArray, how);
        QFETCH(bool, recording);
        LinkRig rig;
        ScriptedPrompts *prompts = rig.bench.prompts;
        // Message and dialog stay open until the program takes them back.
        prompts->whileOpen = [&] { (void)QTest::qWaitFor([&] { return prompts->withdrawn > 0; }); };
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(30));
        if (!recording) {
            emit rig.bench.view.startStopRecording();
            QTRY_VERIFY(!rig.bench.controller.isRecordingRunning());
        }
        BoxOptions quick;
        quick.rebootPause = 200;
        rig.box.setOptions(quick);
        loseLink(how, rig);
        QTRY_COMPARE_WITH_TIMEOUT(prompts->messages.size(), std::size_t(1), 10000);
        QTRY_VERIFY(rig.bench.model.isConnected() && prompts->withdrawn > 0);
        QCOMPARE(prompts->messages.size(), std::size_t(1));
        QCOMPARE(prompts->messages[0].text, "Die Mesotra Hardware ist nicht mehr erreichbar."_s);
        QVERIFY(prompts->addressDialogs <= 1);
        QTRY_VERIFY(rig.box.receivedCommands().filter("t="_s).constLast() == "t=5"_s);
        QTRY_COMPARE(rig.bench.controller.isRecordingRunning(), recording);
        if (recording)
            QTRY_VERIFY(rig.bench.shots() == 2 && rig.newest() > 20);
        QTest::qWait(50);
        QCOMPARE(rig.bench.model.clock(), kPeriod);
        QCOMPARE(rig.bench.shots(), recording ? 2 : 1);
        QCOMPARE(rig.bench.model.shotLabel(rig.bench.shots() - 1),
                 recording ? "Fortsetzung nach Verbindungsabbruch"_s : QString());
        QVERIFY(rig.bench.slotsMatchModel());
        expectNoticeUntilSeen(rig);
        if (recording)
            emit rig.bench.view.startStopRecording();
        QTRY_VERIFY(!rig.bench.controller.isRecordingRunning());
        QCOMPARE(rig.stored(), rig.proxy.toProgram());
    }

    /// A box that went on by itself sends lines that belong to no shot.
    void lateLinesLandNowhere()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(20));
        emit rig.bench.view.startStopRecording();
        QTRY_VERIFY(!rig.bench.controller.isRecordingRunning());
        const qint64 before = rig.stored();
        rig.proxy.drop();
        QTRY_VERIFY(!rig.bench.model.isConnected());
        QTRY_VERIFY(rig.bench.model.isConnected());
        rig.box.burst(50);
        QTRY_VERIFY(rig.proxy.toProgram() >= before + 50);
        QTest::qWait(50);
        QCOMPARE(rig.stored(), before);
    }

    void failedAttemptsBotherNobody()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        rig.proxy.setListening(false);
        rig.proxy.drop();
        QTRY_COMPARE(rig.bench.prompts->addressDialogs, 1);
        QVERIFY(rig.bench.prompts->addressReason.contains("127.0.0.1"_s));
        QTRY_VERIFY(rig.detail().contains("4. Versuch"_s));
        QCOMPARE(rig.head(), "Verbindung verloren"_s);
        QVERIFY(rig.detail().contains("Verbindung abgelehnt"_s));
        emit rig.bench.view.connectDisconnect(); // the user does not want to wait
        QTRY_VERIFY(!rig.bench.view.isProgressShown());
        QCOMPARE(rig.bench.prompts->messages.size(), std::size_t(1));
        QCOMPARE(rig.bench.prompts->addressDialogs, 1);
        rig.button("buttonStopRetrying")->click();
        QVERIFY(!rig.button("buttonStopRetrying")->isVisibleTo(rig.line()));
        const int links = rig.proxy.links();
        rig.proxy.setListening(true);
        QTest::qWait(300);
        QCOMPARE(rig.proxy.links(), links);
        QCOMPARE(rig.head(), "Verbindung verloren"_s); // until it has been seen
        rig.button("buttonAcknowledge")->click();
        QCOMPARE(rig.head(), "Nicht verbunden"_s);
        emit rig.bench.view.connectDisconnect();
        QTRY_VERIFY(rig.bench.model.isConnected());
    }

    void theUserEndsTheLink()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(5));
        emit rig.bench.view.connectDisconnect();
        QTest::qWait(300);
        QCOMPARE(rig.proxy.links(), 1);
        QCOMPARE(rig.head(), "Nicht verbunden"_s);
        QCOMPARE(rig.bench.shots(), 1);
    }

    void mutedBox()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        rig.proxy.stall(false, true);
        emit rig.bench.view.startStopRecording();
        QTRY_COMPARE(rig.head(), "Die Box antwortet nicht"_s);
        rig.proxy.stall();
        QTRY_COMPARE(rig.head(), "Aufzeichnung läuft"_s);
    }

    /// A box that has stopped sampling without a word is asked for a sign of life, and is not lost if it gives one.
    void signOfLife()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(5));
        rig.bench.controller.onMessageReceived("t=500\n"_s); // no sample is due for a while
        rig.bench.controller.onMessageReceived("t=5\n"_s);
        rig.box.clearReceivedCommands();
        BoxOptions mute;
        mute.silent = true;
        rig.box.setOptions(mute);
        QTRY_COMPARE(rig.box.receivedCommands(), QStringList("t=5"_s));
        rig.box.setOptions({});
        QTRY_COMPARE(rig.head(), "Aufzeichnung läuft"_s);
        QCOMPARE(rig.proxy.links(), 1);
    }

    /// The box cannot have the period of the project; what it echoes as a sign of life is no new time axis.
    void signOfLifeKeepsTheTimeAxis()
    {
        LinkRig rig;
        rig.bench.recordShots(1);
        rig.bench.model.setClock(7);
        emit rig.bench.view.connectDisconnect();
        QTRY_VERIFY(rig.box.receivedCommands().contains("t=100"_s) && !rig.bench.model.hardwareVersion().isEmpty());
        QVERIFY(rig.record(3));
        rig.box.clearReceivedCommands();
        BoxOptions mute;
        mute.silent = true;
        rig.box.setOptions(mute);
        QTRY_COMPARE(rig.box.receivedCommands(), QStringList("t=100"_s));
        rig.bench.say("t=100");
        QCOMPARE(rig.bench.model.clock(), 7);
        rig.bench.say("t=100"); // unasked
        QCOMPARE(rig.bench.model.clock(), 100);
    }

    /// Files are fetched beside the link, whatever happens to that.
    void linkChangesDuringAFetch_data()
    {
        columns<bool, QString>("isConnected", "head");
        row("lost and back", true, "Verbunden");
        row("no link", false, "Nicht verbunden");
    }

    void linkChangesDuringAFetch()
    {
        QFETCH(bool, isConnected);
        const FakeTool tool("sleep 2");
        LinkRig rig(shortTimes(), tool.file(), m_folder.filePath("fetched"_s));
        if (isConnected)
            QVERIFY(rig.connectWithPeriod(kPeriod));
        rig.bench.view.tabBlackBox()->setList({"dir-20240305"_s});
        rig.button("buttonSelectAll")->click();
        QString head;
        bool isProgressShown = false;
        QTimer::singleShot(100, &rig.box, [&] { rig.proxy.drop(); });
        QTimer::singleShot(1500, &rig.box, [&] {
            head = rig.head();
            isProgressShown = rig.bench.view.isProgressShown();
        });
        rig.button("buttonFetch")->click();
        QTEST(head, "head");
        QVERIFY2(isProgressShown, "or nobody could end the fetch");
        QCOMPARE(rig.proxy.links(), isConnected ? 2 : 0);
        QVERIFY(!rig.bench.view.isProgressShown());
    }

    /// A box that was asked to go on with a recording is stopped again if its project has been closed meanwhile.
    void continuedOnlyInItsProject()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(20));
        rig.box.clearReceivedCommands();
        bool isAsked = false;
        connect(rig.bench.controller.connector(), &MesotraConnector::written, &rig.box, [&](const QString &text) {
            isAsked = isAsked || text == "run=1\n"_s;
            rig.proxy.stall(isAsked); // its answer has to wait
        });
        rig.proxy.drop();
        QTRY_VERIFY(isAsked);
        rig.bench.prompts->answers = {QMessageBox::Save};
        rig.bench.prompts->saveNames = {m_folder.filePath("left.vnt"_s)};
        emit rig.bench.view.newProject();
        QTRY_VERIFY(rig.box.receivedCommands().contains("run=0"_s));
        rig.proxy.stall();
        QTRY_COMPARE(rig.bench.shots(), 1); // of what was under way
        QTRY_VERIFY(!rig.bench.controller.isRecordingRunning());
        QCOMPARE(rig.bench.model.shotLabel(0), QString());
    }

    /// While a file is written or a question of the box is open, lines wait: that is no silence.
    void heldLinesAreNoSilence()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(5));
        bool isDone = false;
        rig.bench.model.setYield([&](int) {
            if (!std::exchange(isDone, true))
                QTest::qWait(1500);
        });
        QVERIFY(rig.bench.model.save(m_folder.filePath("long.vnt"_s)));
        QVERIFY(isDone);
        QTest::qWait(50);
        QCOMPARE(rig.head(), "Aufzeichnung läuft"_s);
        QCOMPARE(rig.proxy.links(), 1);
    }

    void missingLinesAreToldAndKept()
    {
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QVERIFY(rig.record(100));
        rig.bench.model.setOffset(0, 0.0);
        BoxOptions silent;
        silent.silent = true;
        rig.box.setOptions(silent);
        QTest::qWait(300);
        rig.box.setOptions({});
        QTRY_VERIFY(rig.newest() > 700);
        emit rig.bench.view.startStopRecording();
        QTRY_VERIFY(!rig.bench.controller.isRecordingRunning());
        const int missing = rig.bench.model.projectMeta().missing(0);
        QVERIFY2(missing >= 50 && missing <= 75, QByteArray::number(missing));
        QTRY_VERIFY(rig.detail().contains("Werte fehlen"_s));
    }

    void onlyBoxesAreRemembered()
    {
        QTcpServer mailServer;
        QVERIFY(mailServer.listen(QHostAddress::LocalHost));
        QObject::connect(&mailServer, &QTcpServer::newConnection, &mailServer,
                         [&] { mailServer.nextPendingConnection()->write("220 mail ready\n400;Bad Request\n"); });
        Bench bench(linkOptions(mailServer.serverPort(), shortTimes()));
        emit bench.view.connectDisconnect();
        QTRY_VERIFY(bench.model.isConnected());
        QTRY_COMPARE(bench.view.findChild<QLabel *>("labelState"_s)->text(), "Die Box antwortet nicht"_s);
        QCOMPARE(remembered(), QStringList());
        LinkRig rig;
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QCOMPARE(remembered(), QStringList("127.0.0.1"_s));
    }

    void startPageShowsWhoAnswers()
    {
        QSettings("Tarnwald"_s, "Ventaro"_s).setValue("recentAddresses"_s, QStringList{"127.0.0.1"_s, "127.0.0.9"_s});
        LinkRig rig;
        View &view = rig.bench.view;
        const auto answer = [&](int number) {
            return view.findChild<RecentButton *>("buttonRecentAddress%1"_s.arg(number))->accessibleDescription();
        };
        view.show();
        QTest::qWait(100);
        rig.bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes};
        rig.button("buttonCheckBoxes")->click(); // and no
        QTest::qWait(100);
        QVERIFY2(rig.proxy.links() == 0, "a box may leave another computer for the attempt");
        rig.button("buttonCheckBoxes")->click();
        QTRY_VERIFY(answer(1) == "antwortet"_s && answer(2) == "keine Antwort"_s);
        QCOMPARE(rig.proxy.links(), 1);
        QVERIFY(rig.box.receivedCommands().isEmpty());
        QTRY_VERIFY2(answer(1).isEmpty(), "nobody knows that for long");
        QCOMPARE(rig.proxy.links(), 1);
        rig.button("buttonCheckBoxes")->click();
        QTRY_COMPARE(answer(1), "antwortet"_s);
        QVERIFY(rig.connectWithPeriod(kPeriod));
        QTRY_COMPARE(answer(1), "Werkzeug · 2.1"_s);
        const int links = rig.proxy.links();
        rig.button("buttonCheckBoxes")->click();
        QTest::qWait(200);
        QCOMPARE(rig.proxy.links(), links);
        QCOMPARE(rig.bench.prompts->questions.size(), std::size_t(3));
    }

private:
    static void expectNoticeUntilSeen(LinkRig &rig)
    {
        QVERIFY(rig.detail().contains("unterbrochen"_s) && rig.button("buttonAcknowledge")->isVisibleTo(rig.line()));
        rig.button("buttonAcknowledge")->click();
        QVERIFY(!rig.detail().contains("unterbrochen"_s));
    }

    static void loseLink(const QByteArray &how, LinkRig &rig)
    {
        if (how == "reboot")
            rig.box.reboot();
        else if (how == "cut")
            rig.proxy.cutNextLine();
        else if (how == "stall")
            rig.proxy.stall(true, true);
        else
            rig.proxy.drop(how == "hard");
        if (how != "stall")
            return;
        // New links come through, but nobody answers: the box is not back. By a timer, as a dialog is up meanwhile.
        auto *timer = new QTimer(&rig.proxy);
        connect(timer, &QTimer::timeout, &rig.proxy, [&rig] {
            if (rig.proxy.links() > 2)
                rig.proxy.stall();
        });
        timer->start(10);
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestLink)
#include "tst_link.moc"
