#include "bench.h"

#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"

class TestDeletion : public QObject
{
    Q_OBJECT

private slots:
    void ranges_data()
    {
        // range: of six shots
        columns<QString, QVector<double>, bool>("range", "left", "complete");
        const auto row = [](const char *range, const QVector<double> &left, bool complete = true) {
            ::row(range, QString::fromLatin1(range), left, complete);
        };
        row("1-3,5", {4, 6});
        row("5,1-3", {1, 2, 3, 4, 6}); // 5 goes first, then the span begins one too low
        row("3-1", {1, 2, 3, 4, 5, 6});
        row("1-2-3", {1, 2, 3, 4, 5, 6}, false);
        row("1- -3", {1, 2, 3, 4, 5, 6}, false); // a blank piece counts
        row("2,1-2-3,4", {1, 3, 4, 5, 6}, false);
        row("  1 , , 3 ,,", {2, 4, 5, 6});
        row("2 - 4", {1, 5, 6});
        row("-2-3-", {1, 4, 5, 6}); // empty pieces do not count
        row("-", {1, 2, 3, 4, 5, 6}, false);
        row("", {1, 2, 3, 4, 5, 6});
        row("abc", {1, 2, 3, 4, 5, 6});
        row("abc-2", {1, 2, 3, 4, 5, 6}); // 0 to 2: all at index -1
        row("7,1", {2, 3, 4, 5, 6});
        row("1-2000000000", {});
        row("5-2147483647,1", {1, 2, 3, 4});      // two are gone when 1 is looked for
        row("1-99999999999", {1, 2, 3, 4, 5, 6}); // no int: 0
    }

    void ranges()
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
        QCOMPARE(log.contains("syntax error in range!!  (range="_s), !complete);
    }

    void syntaxErrorLeavesSignalsBlocked()
    {
        Bench bench;
        bench.recordShots(3);
        bench.model.setProjectModifiedFlag(false);
        bench.prompts->answers = {QMessageBox::Yes};
        QSignalSpy fileState(&bench.model, &Model::fileStateChanged);
        const LogCapture log;
        bench.controller.onTabOszi_deleteMeasurements("1,1-2-3,2"_s);
        QCOMPARE(fileState.count(), 1); // the project is modified, and the window says so all the same
        QVERIFY(log.contains("numRemoved=1 (part=1"_s));
        QVERIFY(log.contains("syntax error in range!!  (range=1,2,3)"_s));
        QVERIFY(bench.model.signalsBlocked());
        QVERIFY(bench.slotsMatchModel());
        bench.view.grab(); // paints what is left

        QSignalSpy changed(&bench.model, &Model::dataChanged);
        bench.say("0;1;2;3;4;5");
        QVERIFY(!bench.model.signalsBlocked());
        QCOMPARE(changed.count(), 1);
    }

    void deletionDuringRecordingLosesNothing()
    {
        Bench bench;
        bench.recordShots(2);
        bench.say("run=1");
        bench.say("0;3;3;3;3;3");
        bench.prompts->answers = {QMessageBox::Yes, QMessageBox::Yes};
        bench.controller.onTabOszi_deleteMeasurements("1"_s);
        bench.say("0;4;4;4;4;4");
        QCOMPARE(bench.samples(0, 1), (QVector<double>{3, 4}));
        bench.controller.onTabOszi_deleteMeasurements("2"_s);
        bench.say("0;5;5;5;5;5"); // the shot in progress is gone: the rest becomes a separate shot
        bench.say("0;6;6;6;6;6");
        QCOMPARE(bench.firstSamples(), (QVector<double>{2, 5}));
        QCOMPARE(bench.samples(0, 1), (QVector<double>{5, 6}));
        QVERIFY(bench.slotsMatchModel());
        QVERIFY(bench.controller.isRecordingRunning());
    }
};

QTEST_MAIN(TestDeletion)
#include "tst_deletion.moc"
