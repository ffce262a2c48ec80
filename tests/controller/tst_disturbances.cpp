#include "rig.h"

#include "tests/support/logcapture.h"

#include <QSignalSpy>
#include <QTemporaryDir>

class TestDisturbances : public QObject
{
    Q_OBJECT

private slots:
    void linkLost_data();
    void linkLost();
    void linkLostDuringProjectQuestion();
    void errors_data();
    void errors();
    void refusedThenAnotherAddress();
    void attemptGivenUp_data();
    void attemptGivenUp();
    void invalidAddressIsNotUsed();
    void misbehaviour_data();
    void misbehaviour();
    void droppedAfterBytes();
    void silentBox();
    void projectDescriptionOnConnection();
    void lineFeedThatNeverComes();
    void descriptionsInARow();
    void samplesDuringSave();

private:
    void loseLinkWhile(const QByteArray &state, Rig &rig);
    static void expectRecovery(Rig &rig);

    QTemporaryDir m_folder;
};

void TestDisturbances::linkLost_data()
{
    QTest::addColumn<QByteArray>("state");
    for (const char *state : {"idle", "recording", "calibrating", "deleting", "saving", "quitting"})
        QTest::newRow(state) << QByteArray(state);
}

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
        bench.prompts->saveNames = {m_folder.filePath(QStringLiteral("lost.vnt"))};
        bench.model.setYield([dropOnce](int) mutable { dropOnce(); });
        emit bench.view.saveProject();
        return;
    }
    bench.prompts->answers = {state == "deleting" ? QMessageBox::No : QMessageBox::Cancel};
    bench.prompts->whileOpen = dropOnce;
    if (state == "calibrating")
        emit bench.view.calibrate();
    else if (state == "deleting")
        emit bench.view.tabOszi()->deleteMeasurements(QStringLiteral("1"));
    else
        emit bench.view.quit();
}

/// The user was told once and the day goes on.
void TestDisturbances::expectRecovery(Rig &rig)
{
    Bench &bench = rig.bench;
    QTRY_COMPARE(bench.prompts->addressDialogs, 1);
    QVERIFY(!bench.model.isConnected());
    QVERIFY(!bench.controller.isRecordingRunning());
    const auto lost = std::count_if(bench.prompts->messages.begin(), bench.prompts->messages.end(), [](const auto &m) {
        return m.text == QLatin1String("Die Mesotra Hardware ist nicht mehr erreichbar.")
               && m.title == QLatin1String("Netzwerk Fehler");
    });
    QCOMPARE(lost, 1);
    QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
    bench.prompts->whileOpen = nullptr;
    bench.model.setYield({});
    rig.box.setOptions({});
    QVERIFY(rig.connectQuickly());
    const int shots = bench.shots();
    QVERIFY(rig.recordShot(3));
    QCOMPARE(bench.shots(), shots + 1);
    QCOMPARE(bench.prompts->addressDialogs, 1);
}

void TestDisturbances::linkLost()
{
    QFETCH(QByteArray, state);
    Rig rig;
    QVERIFY(rig.connectQuickly());
    QVERIFY(rig.start());
    QTRY_VERIFY(rig.sent.size() > 3);
    loseLinkWhile(state, rig);
    QTRY_VERIFY(!rig.bench.model.isConnected());
    QVERIFY2(state == "calibrating" || rig.allArrived(), "every sample that was sent is kept");
    expectRecovery(rig);
}

void TestDisturbances::linkLostDuringProjectQuestion()
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
    expectRecovery(rig);
    QVERIFY(!rig.bench.model.projectData().name.isEmpty());
}

void TestDisturbances::errors_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("text");
    QTest::newRow("closed") << int(QAbstractSocket::RemoteHostClosedError)
                            << QStringLiteral("Die Mesotra Hardware ist nicht mehr erreichbar.");
    QTest::newRow("not found") << int(QAbstractSocket::HostNotFoundError)
                               << QStringLiteral(
                                      "Die Mesotra Hardware wurde nicht gefunden! Bitte IP-Adresse überprüfen!");
    QTest::newRow("refused") << int(QAbstractSocket::ConnectionRefusedError)
                             << QStringLiteral(
                                    "Die Verbindung wurde abgelehnt!\n(Die IP-Adresse wurde jedoch gefunden.)");
    QTest::newRow("other") << int(QAbstractSocket::NetworkError) << QString();
}

void TestDisturbances::errors()
{
    QFETCH(int, error);
    QFETCH(QString, text);
    Bench bench(optionsFor(1));
    bench.view.showProgress(QStringLiteral("Verbinden ..."));
    const LogCapture log;
    bench.controller.connectionError(QAbstractSocket::SocketError(error));
    QVERIFY(!bench.view.isProgressShown());
    QCOMPARE(bench.prompts->messages.size(), std::size_t(text.isEmpty() ? 0 : 1));
    if (!text.isEmpty()) {
        QCOMPARE(bench.prompts->messages[0].text, text);
        QCOMPARE(bench.prompts->messages[0].title, QStringLiteral("Netzwerk Fehler"));
    }
    QCOMPARE(bench.prompts->addressDialogs, 1);
    QVERIFY(log.contains(QStringLiteral("dialog rejected")));
}

void TestDisturbances::refusedThenAnotherAddress()
{
    Rig rig;
    rig.box.reboot(); // for a while nobody listens
    rig.bench.prompts->addresses = {QStringLiteral("127.0.0.1"), QString()};
    emit rig.bench.view.connectDisconnect();
    QTRY_COMPARE(rig.bench.prompts->addressDialogs, 2);
    QCOMPARE(rig.bench.prompts->messages.size(), std::size_t(2));
    QCOMPARE(rig.bench.prompts->mostOpenAtOnce, 1);
    QVERIFY(!rig.bench.view.isProgressShown());
}

void TestDisturbances::attemptGivenUp_data()
{
    QTest::addColumn<QByteArray>("how");
    for (const char *how : {"cancelled", "new project", "quit"})
        QTest::newRow(how) << QByteArray(how);
}

void TestDisturbances::attemptGivenUp()
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
    QCOMPARE(rig.box.receivedCommands().first(), QStringLiteral("t=100"));
    QVERIFY(!rig.box.isRunning());
}

void TestDisturbances::invalidAddressIsNotUsed()
{
    Rig rig;
    rig.bench.prompts->addresses = {QStringLiteral("1.2.3.4 ; x")};
    rig.bench.controller.connectionError(QAbstractSocket::NetworkError);
    QVERIFY(!rig.bench.view.isProgressShown());
    QVERIFY(rig.connectQuickly()); // still the configured one
}

void TestDisturbances::misbehaviour_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"none", "undescribed", "garbage", "long lines", "burst"})
        QTest::newRow(kind) << QByteArray(kind);
}

void TestDisturbances::misbehaviour()
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

void TestDisturbances::droppedAfterBytes()
{
    BoxOptions options;
    options.dropAfter = 3000;
    Rig rig(options);
    QVERIFY(rig.connectQuickly());
    QVERIFY(rig.start());
    QTRY_COMPARE(rig.bench.prompts->addressDialogs, 1);
    QVERIFY(!rig.bench.controller.isRecordingRunning());
    // The last line may have been cut off by the drop.
    const QVector<double> sent = rig.sentValues(0);
    const QVector<double> kept = rig.bench.samples(0, 0);
    QVERIFY(kept.size() > 5 && kept.size() >= sent.size() - 1 && kept.size() <= sent.size());
    QCOMPARE(kept, sent.mid(0, kept.size()));
}

void TestDisturbances::silentBox()
{
    BoxOptions options;
    options.silent = true;
    Rig rig(options);
    QVERIFY(rig.connectToBox());
    QVERIFY(rig.bench.controller.areValuesInThousandths());
    emit rig.bench.view.startStopRecording();
    QTest::qWait(50);
    QVERIFY(!rig.bench.controller.isRecordingRunning());
    QCOMPARE(rig.bench.shots(), 0);
    emit rig.bench.view.connectDisconnect();
    QVERIFY(!rig.bench.model.isConnected());
}

void TestDisturbances::projectDescriptionOnConnection()
{
    BoxOptions options;
    options.sendsProjectDescription = true;
    Rig rig(options);
    rig.bench.prompts->answers = {QMessageBox::Yes};
    QVERIFY(rig.connectQuickly());
    QTRY_COMPARE(rig.bench.prompts->questions.size(), std::size_t(1));
    QVERIFY(!rig.bench.model.projectData().name.isEmpty());
    QVERIFY(rig.recordShot(3));
}

void TestDisturbances::lineFeedThatNeverComes()
{
    Rig rig;
    QVERIFY(rig.connectQuickly());
    QVERIFY(rig.start());
    QTRY_VERIFY(rig.sent.size() > 2);
    BoxOptions mute;
    mute.silent = true; // a sample line behind it would end the line before a slow program has looked
    rig.box.setOptions(mute);
    (void)rig.box.sendRaw(QByteArray(2 * 1024 * 1024, 'x')); // may be cut off by the program hanging up
    QTRY_COMPARE(rig.bench.prompts->addressDialogs, 1);
    QVERIFY(!rig.bench.model.isConnected());
    QVERIFY(!rig.bench.controller.isRecordingRunning());
    QVERIFY(rig.bench.samples(0, 0).size() > 2);
}

void TestDisturbances::descriptionsInARow()
{
    Rig rig;
    QVERIFY(rig.connectQuickly());
    rig.bench.prompts->answers = std::deque<QMessageBox::StandardButton>(1000, QMessageBox::No);
    const QByteArray description =
        "<deviceDescription hardwareVersion=\"1\"/><projectDescription projectName=\"x\"/>\n";
    QVERIFY(rig.box.sendRaw(description.repeated(1000) + "t=25\n"));
    QTRY_COMPARE(rig.bench.model.clock(), 25);
    QTRY_VERIFY(!rig.bench.prompts->questions.empty());
    QTest::qWait(200);
    QVERIFY2(rig.bench.prompts->questions.size() <= 3, "a thousand descriptions are not a thousand questions");
    QCOMPARE(rig.bench.prompts->mostOpenAtOnce, 1);
}

void TestDisturbances::samplesDuringSave()
{
    const QString file = m_folder.filePath(QStringLiteral("live.vnt"));
    Rig rig;
    QVERIFY(rig.connectQuickly());
    QVERIFY(rig.start());
    QTRY_VERIFY(rig.bench.samples(0, 0).size() > 10);
    rig.bench.prompts->saveNames = {file};
    bool yielded = false;
    int before = 0;
    rig.bench.model.setYield([&](int) {
        if (std::exchange(yielded, true))
            return;
        before = rig.bench.samples(0, 0).size();
        QTest::qWait(100);
        QCOMPARE(rig.bench.samples(0, 0).size(), before);
    });
    emit rig.bench.view.saveProject();
    QVERIFY(rig.stopAfter(before + 50));
    QVERIFY(rig.bench.model.isProjectModified());
    const Model saved(file);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        QCOMPARE(*saved.measurement(sensor, 0), rig.sentValues(sensor).mid(0, before));
}

QTEST_MAIN(TestDisturbances)
#include "tst_disturbances.moc"
