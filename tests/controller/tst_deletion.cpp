#include "bench.h"

#include "controller/project/deletionplan.h"
#include "controller/project/deletionquestion.h"
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

    void questionListsWhatGoes_data()
    {
        // of six shots; end: how the details end
        columns<QString, QVector<int>, QString>("range", "numbers", "end");
        const auto row = [](const char *range, const QVector<int> &numbers, const QString &end = {}) {
            ::row(range, QString::fromLatin1(range), numbers, end);
        };
        const QString undo = "Mit Strg+Z lässt sich das rückgängig machen."_s;
        const QString surprise = "Messungen nachrücken.\n\n"_s + undo;
        row("2", {2}, undo);
        row("1-3,5", {1, 2, 3, 5}, undo);
        row("5,3", {5, 2}, surprise);
        row("5,5", {5, 4}, surprise);
        row("3-1", {}, "Keine Messung wird gelöscht."_s);
        row("6,1-2-3,2", {6},
            "Ab \"1-2-3\" ist die Eingabe fehlerhaft. Dieser Teil und alles dahinter wird nicht gelöscht.\n\n"_s
                + undo);
    }

    void questionListsWhatGoes()
    {
        QFETCH(QString, range);
        QFETCH(QVector<int>, numbers);
        QFETCH(QString, end);
        Bench bench;
        bench.recordShots(6);
        for (int shot = 0; shot < 6; ++shot)
            bench.model.setTimestamp(shot, QDateTime({2026, 11, 22}, {6, 0, shot + 1}));
        bench.controller.onTabOszi_deleteMeasurements(range);
        const StandardQuestion &question = bench.prompts->questions.at(0);
        QVERIFY(question.isDestructive && question.safest == QMessageBox::No);
        const QStringList lines = question.text.split(QLatin1Char('\n'));
        QCOMPARE(lines.mid(0, 3), (QStringList{"Folgende Datensätze werden gelöscht:"_s, range, QString()}));
        QVERIFY(numbers.isEmpty() || lines[3].contains(QString::number(numbers.size())));
        for (int i = 0; i < numbers.size(); ++i)
            QCOMPARE(lines.value(4 + i), "Messung %1, 22.11.2026 06:00:0%1"_s.arg(numbers[i]));
        QVERIFY2(question.text.endsWith(end), qPrintable(question.text));
        const bool isSurprise = question.text.contains("andere als eingegeben"_s);
        QCOMPARE(isSurprise, end.startsWith("Messungen"_s));
        QCOMPARE(bench.shots(), 6); // the box was closed
    }

    void manyAreShortened()
    {
        const DeletionPlan plan = planDeletion("1-2000000000"_s, 100000);
        QCOMPARE(plan.removed().size(), 100000);
        const Model model{QString()};
        const QString text = DeletionQuestion::details(plan, QString(), model);
        QVERIFY(text.count(QLatin1Char('\n')) < 110);
        QVERIFY2(text.contains("99901 weitere, zuletzt Messung 100000"_s), qPrintable(text.right(200)));
    }

    /// The question listed what was there when it was asked.
    void shotsRecordedMeanwhileStay()
    {
        Bench bench;
        bench.recordShots(2);
        bench.prompts->answers = {QMessageBox::Yes};
        bench.prompts->whileOpen = [&] { bench.recordShots(1); };
        bench.controller.onTabOszi_deleteMeasurements("2-9"_s);
        QCOMPARE(bench.firstSamples(), (QVector<double>{1, 3}));
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
