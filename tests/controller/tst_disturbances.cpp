#include "rig.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QTemporaryDir>

class TestDisturbances : public QObject
{
    Q_OBJECT

private slots:
    void linkLost_data()
    {
        columns<QByteArray>("state");
        for (const char *state : {"idle", "recording", "calibrating", "deleting", "saving", "quitting"})
            row(state, QByteArray(state));
    }

    void linkLost()
    {
        QFETCH(QByteArray, state);
        Rig rig;
        QVERIFY(rig.connectQuickly());
        QVERIFY(rig.start());
        QTRY_VERIFY(rig.sent.size() > 3);
        loseLinkWhile(state, rig);
        QTRY_VERIFY(!rig.bench.model.isConnected());
        QVERIFY2(state == "calibrating" || rig.allArrived(), "every sample that was sent is kept");
        expectRecovery(rig, state != "idle" && state != "calibrating");
    }

    void linkLostDuringProjectQuestion()
    {
        BoxOptions options;
        options.sendsProjectDescription = true;
        Rig rig(options);
        rig.bench.prompts->answers = {QMessageBox::Yes};
        rig.bench.prompts->whileOpen = [&] {
            rig.box.dropLink();
            QTest::qWait(60);
        };
        QVERIFY(rig.connectToBox());
        expectRecovery(rig, false);
        QVERIFY(!rig.bench.model.projectData().name.isEmpty());
    }

    void refusedThenAnotherAddress()
    {
        Rig rig;
        rig.box.reboot(); // nobody listens for a while
        rig.bench.prompts->addresses = {"127.0.0.2"_s, QString()};
        emit rig.bench.view.connectDisconnect();
        QTRY_COMPARE(rig.bench.prompts->addressDialogs, 2);
        QCOMPARE(rig.bench.controller.connector()->hostAddress(), "127.0.0.2"_s);
        QCOMPARE(rig.bench.prompts->messages.size(), std::size_t(2));
        QCOMPARE(rig.bench.prompts->mostOpenAtOnce, 1);
        QVERIFY(!rig.bench.view.isProgressShown());
    }

    void attemptGivenUp_data()
    {
        columns<QByteArray>("how");
        for (const char *how : {"cancelled", "new project", "quit"})
            row(how, QByteArray(how));
    }

    void attemptGivenUp()
    {
        QFETCH(QByteArray, how);
        Rig rig;
        rig.bench.recordShots(1);
        rig.bench.prompts->answers = {QMessageBox::Discard};
        emit rig.bench.view.connectDisconnect();
        if (how == "cancelled")
            emit rig.bench.view.progressCancelled();
        else if (how == "quit")
            emit rig.bench.view.quit();
        else
            emit rig.bench.view.newProject();
        QVERIFY(!rig.bench.view.isProgressShown());
        QTest::qWait(100);
        QVERIFY(!rig.bench.model.isConnected());
        QCOMPARE(rig.bench.prompts->addressDialogs, 0);
        emit rig.bench.view.connectDisconnect();
        emit rig.bench.view.startStopRecording(); // too early: must not take effect when the link comes up
        QTRY_VERIFY(rig.bench.model.isConnected() && !rig.isWaitingForDescriptions());
        QCOMPARE(rig.box.receivedCommands().first(), "t=100"_s);
        QVERIFY(!rig.box.isRunning());
    }

    void misbehaviour_data()
    {
        columns<QByteArray>("kind");
        for (const char *kind : {"none", "undescribed", "garbage", "long lines", "burst"})
            row(kind, QByteArray(kind));
    }

    void misbehaviour()
    {
        QFETCH(QByteArray, kind);
        BoxOptions options;
        options.describesSensors = kind != "undescribed";
        options.garbage = kind == "garbage";
        options.longLines = kind == "long lines";
        options.burst = kind == "burst" ? 20000 : 0;
        Rig rig(options);
        QVERIFY(rig.connectQuickly());
        QCOMPARE(rig.bench.controller.areValuesInThousandths(), kind == "undescribed");
        QVERIFY(rig.start());
        QTRY_VERIFY(rig.sent.size() > 40 + options.burst);
        emit rig.bench.view.startStopRecording();
        QTRY_VERIFY(!rig.bench.controller.isRecordingRunning());
        QTRY_VERIFY(rig.allArrived(kind == "undescribed" ? 1000.0 : 1.0));
        QCOMPARE(rig.bench.shots(), 1);
        QVERIFY(rig.bench.prompts->messages.empty());
    }

    void lineFeedThatNeverComes()
    {
        Rig rig;
        QVERIFY(rig.connectQuickly());
        QVERIFY(rig.start());
        QTRY_VERIFY(rig.sent.size() > 2);
        BoxOptions mute;
        mute.silent = true; // a sample line behind it would end the line before a slow program has looked
        rig.box.setOptions(mute);
        (void)rig.box.sendRaw(QByteArray(2 * 1024 * 1024, 'x')); // may be cut off when the program drops the link
        QTRY_COMPARE(rig.bench.prompts->addressDialogs, 1);
        QVERIFY(!rig.bench.model.isConnected());
        QVERIFY(!rig.bench.controller.isRecordingRunning());
        QVERIFY(rig.bench.samples(0, 0).size() > 2);
    }

    void errorTexts_data()
    {
        columns<int, QString>("error", "text");
        row("closed", int(QAbstractSocket::RemoteHostClosedError), "Die Mesotra Hardware ist nicht mehr erreichbar.");
        row("not found", int(QAbstractSocket::HostNotFoundError),
            "Die Mesotra Hardware wurde nicht gefunden! Bitte IP-Adresse überprüfen!");
        row("refused", int(QAbstractSocket::ConnectionRefusedError),
            "Die Verbindung wurde abgelehnt!\n(Die IP-Adresse wurde jedoch gefunden.)");
        row("other", int(QAbstractSocket::NetworkError), QString());
    }

    void errorTexts()
    {
        QFETCH(int, error);
        Bench bench;
        bench.view.showProgress("Verbinden ..."_s);
        bench.controller.connectionError(QAbstractSocket::SocketError(error));
        QVERIFY(!bench.view.isProgressShown());
        QTEST(bench.prompts->messages.empty() ? QString() : bench.prompts->messages[0].text, "text");
    }

private:
    void loseLinkWhile(const QByteArray &state, Rig &rig);
    static void expectRecovery(Rig &rig, bool wasRecording);

    QTemporaryDir m_folder;
};

/// Brings the program into a state and drops the link there.
void TestDisturbances::loseLinkWhile(const QByteArray &state, Rig &rig)
{
    Bench &bench = rig.bench;
    auto dropOnce = [&rig, dropped = false]() mutable {
        if (std::exchange(dropped, true))
            return;
        rig.box.dropLink();
        QTest::qWait(60);
    };
    if (state == "idle" || state == "calibrating")
        QVERIFY(rig.stopAfter(3));
    if (state == "idle" || state == "recording") {
        rig.box.dropLink();
        return;
    }
    if (state == "saving") {
        bench.prompts->saveNames = {m_folder.filePath("lost.vnt"_s)};
        bench.model.setYield([dropOnce](int) mutable { dropOnce(); });
        emit bench.view.saveProject();
        return;
    }
    bench.prompts->answers = {state == "deleting" ? QMessageBox::No : QMessageBox::Cancel};
    bench.prompts->whileOpen = dropOnce;
    if (state == "calibrating")
        emit bench.view.calibrate();
    else if (state == "deleting")
        emit bench.view.tabOszi()->deleteMeasurements("1"_s);
    else
        emit bench.view.quit();
}

/// The user was told once, and the program works with the next link.
void TestDisturbances::expectRecovery(Rig &rig, bool wasRecording)
{
    Bench &bench = rig.bench;
    QTRY_COMPARE(bench.prompts->addressDialogs, 1);
    QVERIFY(!bench.model.isConnected());
    QVERIFY(!bench.controller.isRecordingRunning());
    const auto lost = std::count_if(bench.prompts->messages.begin(), bench.prompts->messages.end(), [](const auto &m) {
        return m.text == "Die Mesotra Hardware ist nicht mehr erreichbar."_s && m.title == "Netzwerk Fehler"_s;
    });
    QCOMPARE(lost, 1);
    QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
    bench.prompts->whileOpen = nullptr;
    bench.model.setYield({});
    rig.box.setOptions({});
    QVERIFY(rig.connectQuickly());
    if (wasRecording) { // goes on by itself
        QTRY_VERIFY(bench.controller.isRecordingRunning());
        emit bench.view.startStopRecording();
        QTRY_VERIFY(!bench.controller.isRecordingRunning());
    }
    const int shots = bench.shots();
    QVERIFY(rig.recordShot(3));
    QCOMPARE(bench.shots(), shots + 1);
    QCOMPARE(bench.prompts->addressDialogs, 1);
}

QTEST_MAIN(TestDisturbances)
#include "tst_disturbances.moc"
