#include "bench.h"

#include "tests/support/logcapture.h"

#include <QSignalSpy>

class TestDeletion : public QObject
{
    Q_OBJECT

private slots:
    void ranges_data();
    void ranges();
    void asksWithRangeAsTyped();
    void syntaxErrorLeavesSignalsBlocked();
    void everyActionOpensSignalsAgain_data();
    void everyActionOpensSignalsAgain();
    void unequalChannels();
    void seriesFollowDeletion_data();
    void seriesFollowDeletion();
    void deletionDuringRecordingLosesNothing();
    void highlightedShotDeleted();
    void moreShotsThanSlots();
    void paintAfterDeletion();
};

void TestDeletion::ranges_data()
{
    QTest::addColumn<QString>("range"); // of six shots
    QTest::addColumn<QVector<double>>("left");
    QTest::addColumn<bool>("complete");
    const auto row = [](const char *range, const QVector<double> &left, bool complete = true) {
        QTest::newRow(range) << QString::fromLatin1(range) << left << complete;
    };
    row("1-3,5", {4, 6});
    row("5,1-3", {1, 2, 3, 4, 6}); // 5 goes first, then the span begins one too low
    row("6,1", {1, 2, 3, 4, 5});
    row("3-1", {1, 2, 3, 4, 5, 6});
    row("1-2-3", {1, 2, 3, 4, 5, 6}, false);
    row("2,1-2-3,4", {1, 3, 4, 5, 6}, false);
    row("  1 , , 3 ,,", {2, 4, 5, 6});
    row("2 - 4", {1, 5, 6});
    row("-2-3-", {1, 4, 5, 6}); // empty pieces do not count
    row("-", {1, 2, 3, 4, 5, 6}, false);
    row("", {1, 2, 3, 4, 5, 6});
    row("0", {1, 2, 3, 4, 5, 6});
    row("abc", {1, 2, 3, 4, 5, 6});
    row("abc-2", {1, 2, 3, 4, 5, 6}); // 0 to 2: all at index -1
    row("7,1", {2, 3, 4, 5, 6});
    row("1-2000000000", {});
    row("5-2147483647,1", {1, 2, 3, 4});      // two are gone when 1 is looked for
    row("1-99999999999", {1, 2, 3, 4, 5, 6}); // no int: 0
    row("1,1,1", {2, 3, 4, 5, 6});
}

void TestDeletion::ranges()
{
    QFETCH(QString, range);
    QFETCH(QVector<double>, left);
    QFETCH(bool, complete);
    Bench bench;
    bench.recordShots(6);
    bench.model.setProjectModifiedFlag(false);
    bench.prompts->answers = {QMessageBox::Yes};
    QSignalSpy changed(&bench.model, &Model::dataChanged);
    const LogCapture log;
    bench.controller.onTabOszi_deleteMeasurements(range);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        QCOMPARE(bench.firstSamples(sensor), left);
    QVERIFY(bench.slotsMatchModel());
    QCOMPARE(changed.count(), complete ? 1 : 0);
    QCOMPARE(bench.model.signalsBlocked(), !complete);
    QCOMPARE(bench.model.isProjectModified(), left.size() < 6);
    QCOMPARE(log.contains(QStringLiteral("syntax error in range!!  (range=")), !complete);
}

void TestDeletion::asksWithRangeAsTyped()
{
    Bench bench;
    bench.recordShots(3);
    bench.prompts->answers = {QMessageBox::No};
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral(" 1,, 2%1"));
    QCOMPARE(bench.prompts->questions.at(0).title, QStringLiteral("Daten löschen"));
    QCOMPARE(bench.prompts->questions.at(0).text, QStringLiteral("Folgende Datensätze werden gelöscht:\n 1,, 2%1"));
    QCOMPARE(bench.shots(), 3);
}

void TestDeletion::syntaxErrorLeavesSignalsBlocked()
{
    Bench bench;
    bench.recordShots(3);
    bench.prompts->answers = {QMessageBox::Yes};
    const LogCapture log;
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("1,1-2-3,2"));
    QVERIFY(log.contains(QStringLiteral("numRemoved=1 (part=1")));
    QVERIFY(log.contains(QStringLiteral("syntax error in range!!  (range=1,2,3)")));
    QVERIFY(bench.model.signalsBlocked());
    QVERIFY(bench.slotsMatchModel());
    bench.view.grab(); // paints what is left

    QSignalSpy changed(&bench.model, &Model::dataChanged);
    bench.say("0;1;2;3;4;5");
    QVERIFY(!bench.model.signalsBlocked());
    QCOMPARE(changed.count(), 1);
}

void TestDeletion::everyActionOpensSignalsAgain_data()
{
    QTest::addColumn<QByteArray>("action");
    for (const char *action : {"start", "clock", "clear", "new", "calibrate", "marker", "connected", "lost"})
        QTest::newRow(action) << QByteArray(action);
}

void TestDeletion::everyActionOpensSignalsAgain()
{
    QFETCH(QByteArray, action);
    Bench bench;
    bench.recordShots(2);
    bench.prompts->answers = {QMessageBox::Yes, QMessageBox::Ok};
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("1-2-3"));
    QVERIFY(bench.model.signalsBlocked());
    bench.model.setProjectModifiedFlag(false);
    if (action == "start")
        bench.say("run=1");
    else if (action == "clock")
        bench.say("t=5");
    else if (action == "clear")
        bench.controller.onTabProject_clearDataClicked();
    else if (action == "new")
        bench.controller.onNewProject();
    else if (action == "calibrate")
        bench.controller.onActionCalibration();
    else if (action == "marker")
        bench.controller.onTabOszi_markerChangedAbsolute(0, 100);
    else if (action == "connected")
        bench.controller.onConnected();
    else
        bench.controller.onDisconnected();
    QVERIFY(!bench.model.signalsBlocked());
}

void TestDeletion::unequalChannels()
{
    Bench bench;
    bench.recordShots(2);
    bench.model.appendSample(4, bench.model.appendMeasurement(4), 3); // a file may hold such a project
    bench.prompts->answers = {QMessageBox::Yes, QMessageBox::Yes};
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("2-3"));
    QCOMPARE(bench.firstSamples(0), QVector<double>{1});
    QCOMPARE(bench.firstSamples(4), QVector<double>{1});
}

void TestDeletion::seriesFollowDeletion_data()
{
    QTest::addColumn<QString>("range");
    QTest::addColumn<int>("series"); // of three shots, the newest being the series' own
    QTest::newRow("one before") << QStringLiteral("1") << 1;
    QTest::newRow("both before") << QStringLiteral("1-2") << 0;
    QTest::newRow("the shot itself") << QStringLiteral("3") << -1;
    QTest::newRow("all") << QStringLiteral("1-3") << -1;
    QTest::newRow("none") << QStringLiteral("4") << 2;
}

void TestDeletion::seriesFollowDeletion()
{
    QFETCH(QString, range);
    QFETCH(int, series);
    Bench bench;
    bench.recordShots(3);
    bench.prompts->answers = {QMessageBox::Yes};
    bench.controller.onTabOszi_deleteMeasurements(range);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        QCOMPARE(bench.controller.seriesIndex(sensor), series);
    bench.say("0;9;9;9;9;9");
    if (series >= 0)
        QCOMPARE(bench.samples(2, series), (QVector<double>{3, 9}));
    else
        QVERIFY(!bench.firstSamples().contains(9));
}

void TestDeletion::deletionDuringRecordingLosesNothing()
{
    Bench bench;
    bench.recordShots(2);
    bench.say("run=1");
    bench.say("0;3;3;3;3;3");
    bench.prompts->answers = {QMessageBox::Yes, QMessageBox::Yes};
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("1"));
    bench.say("0;4;4;4;4;4");
    QCOMPARE(bench.samples(0, 1), (QVector<double>{3, 4}));
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("2"));
    bench.say("0;5;5;5;5;5"); // the shot in progress is gone: the rest is a shot of its own
    bench.say("0;6;6;6;6;6");
    QCOMPARE(bench.firstSamples(), (QVector<double>{2, 5}));
    QCOMPARE(bench.samples(0, 1), (QVector<double>{5, 6}));
    QVERIFY(bench.slotsMatchModel());
    QVERIFY(bench.controller.isRecordingRunning());
}

void TestDeletion::highlightedShotDeleted()
{
    Bench bench;
    bench.recordShots(3);
    bench.prompts->answers = {QMessageBox::Yes};
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("3"));
    QCOMPARE(bench.view.tabOszi()->row(0)->highlighted(), 1);
    bench.view.tabOszi()->row(0)->showMouseMarker(80);
    bench.view.grab();
}

void TestDeletion::moreShotsThanSlots()
{
    constexpr int kShots = OsziWidget::kNumSlots + 5;
    Bench bench;
    for (int shot = 0; shot < kShots; ++shot)
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            bench.model.appendSample(sensor, bench.model.appendMeasurement(sensor), shot + 1);
    bench.say("run=1");
    bench.say("0;7;7;7;7;7");
    QCOMPARE(bench.samples(0, kShots), QVector<double>{7});
    bench.prompts->answers = {QMessageBox::Yes, QMessageBox::Yes};
    QElapsedTimer timer;
    timer.start();
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("2-10004"));
    QVERIFY2(timer.elapsed() < 10000, "deleting thousands takes seconds at most, sanitizers included");
    QCOMPARE(bench.firstSamples(), (QVector<double>{1, kShots, 7}));
    QCOMPARE(bench.controller.seriesIndex(0), 2);
    QVERIFY(bench.slotsMatchModel());
}

void TestDeletion::paintAfterDeletion()
{
    Bench bench;
    bench.view.resize(1280, 800);
    bench.view.show();
    bench.recordShots(4);
    bench.prompts->answers = {QMessageBox::Yes, QMessageBox::Yes, QMessageBox::Yes};
    for (const char *range : {"1-2", "1-2-3", "2,1-1-1"}) {
        bench.view.tabOszi()->row(0)->refresh(); // a paint is pending while the samples go
        bench.controller.onTabOszi_deleteMeasurements(QString::fromLatin1(range));
        QCoreApplication::processEvents();
        bench.say("0;1;1;1;1;1");
    }
    QCOMPARE(bench.firstSamples(), QVector<double>{3});
}

QTEST_MAIN(TestDeletion)
#include "tst_deletion.moc"
