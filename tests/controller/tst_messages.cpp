#include "bench.h"

#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/blackbox/tabblackbox.h"

#include <QLineEdit>

namespace {

const QByteArray kProject =
    "<deviceDescription hardwareVersion=\"2.1\" firmwareVersion=\"3.4\" numGroups=\"1\"><group name=\"A\" "
    "numChannels=\"1\"><channel min=\"0\" max=\"10\"/></group><projectDescription projectName=\"NAME\" "
    "projectNumber=\"4711\" projectPerson=\"Anna\" projectDate=\"1.2.2020\" projectCustomer=\"Werk\" phase1=\"zu\" "
    "phase2=\"ein\" phase3=\"nach\" phase4=\"kalt\" phase5=\"auf\" closePower=\"900\" injectionTime=\"1.5\" "
    "pressTime=\"2.25\" pressure=\"80\"/>";

QByteArray projectNamed(const QByteArray &name)
{
    return QByteArray(kProject).replace("NAME", name);
}

} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void echoOfStartTwiceLeavesNoEmptyShot()
    {
        Bench bench;
        bench.say("run=1");
        bench.say("run=1");
        QCOMPARE(bench.shots(), 1);
        bench.say("0;1;1;1;1;1");
        bench.say("run=1"); // without a stop, but with data: another shot
        QCOMPARE(bench.shots(), 2);
    }

    void thousandthsUntilTheSensorsAreDescribed()
    {
        Bench bench;
        bench.say("run=1");
        bench.controller.onTimerWaitForSensorDescription_timeout();
        bench.say("0;1500;250");
        bench.say("<sensorDescription numGroups=\"0\">");
        bench.say("0;1500;250");
        QCOMPARE(bench.samples(0, 0), (QVector<double>{1.5, 1500}));
    }

    void clockEcho_data()
    {
        // clock: 40 before; -1: unchanged
        columns<QByteArray, int>("line", "clock");
        row("plain", "t=250"_ba, 250);
        row("white space", "t= 5 "_ba, 5);
        row("text", "t=abc"_ba, -1);
        row("zero", "t=0"_ba, -1);
        row("huge", "t=2147483647"_ba, -1);
        row("beyond int", "t=2147483648"_ba, -1);
        row("hexadecimal", "t=0x10"_ba, -1);
    }

    void clockEcho()
    {
        QFETCH(QByteArray, line);
        QFETCH(int, clock);
        Bench bench;
        bench.say("t=40");
        QSignalSpy changed(&bench.model, &Model::projectChanged);
        bench.say(line);
        QCOMPARE(bench.model.clock(), clock < 0 ? 40 : clock);
        QCOMPARE(bench.view.tabOszi()->row(3)->clock(), clock < 0 ? 40 : clock);
        QCOMPARE(changed.count(), clock < 0 ? 0 : 1);
    }

    void listBlock()
    {
        Bench bench;
        TabBlackBox *tab = bench.view.tabBlackBox();
        bench.say("outside.bb");
        bench.say("list {");
        for (const char *line : {".", "..", "  day  one ", "file.bb", "List {"})
            bench.say(line);
        QVERIFY(tab->list().isEmpty());
        bench.say("} list");
        QCOMPARE(tab->list(), (QStringList{"day one"_s, "file.bb"_s, "List {"_s}));
        bench.say("outside.bb");
        bench.say("list {");
        bench.say("} list");
        QVERIFY(tab->list().isEmpty());
    }

    void projectDescription_data()
    {
        columns<int>("answer");
        row("yes", int(QMessageBox::Yes));
        row("no", int(QMessageBox::No));
    }

    void projectDescription()
    {
        QFETCH(int, answer);
        const bool yes = answer == QMessageBox::Yes;
        Bench bench;
        bench.prompts->answers = {QMessageBox::StandardButton(answer)};
        const ProjectData before = bench.model.projectData();
        QSignalSpy changed(&bench.model, &Model::projectChanged);
        bench.say(projectNamed("Deckel"));
        QCOMPARE(bench.model.hardwareVersion(), "2.1"_s);
        QCOMPARE(changed.count(), 1); // the versions are on display
        QTRY_COMPARE(bench.prompts->questions.size(), std::size_t(1));
        ProjectData expected = before;
        if (yes)
            expected = {"Deckel"_s, "4711"_s, "Anna"_s, "1.2.2020"_s, "Werk"_s, 900, 1.5, 2.25, 80};
        QCOMPARE(bench.model.projectData(), expected);
        for (int phase = 0; phase < Model::kNumPhases; ++phase)
            QCOMPARE(bench.model.phaseName(phase)
                         == QStringList({"zu"_s, "ein"_s, "nach"_s, "kalt"_s, "auf"_s}).at(phase),
                     yes);
        QCOMPARE(bench.model.isProjectModified(), yes);
    }

    void projectDescriptionIsAskedAboutOnce()
    {
        Bench bench;
        bench.prompts->answers = {QMessageBox::No, QMessageBox::NoButton, QMessageBox::Yes};
        const auto sayAndWait = [&](const char *name, std::size_t asked) {
            for (int i = 0; i < 3; ++i)
                bench.say(projectNamed(name));
            QTest::qWait(130);
            QCOMPARE(bench.prompts->questions.size(), asked);
        };
        sayAndWait("A", 1);
        sayAndWait("A", 1);
        sayAndWait("B", 2);
        sayAndWait("A", 2); // declined, whatever came in between
        bench.model.setProjectModifiedFlag(false);
        emit bench.view.newProject();
        sayAndWait("A", 3); // for another project
        QCOMPARE(bench.model.projectData().name, "A"_s);
        sayAndWait("A", 3); // would change nothing
        QCOMPARE(bench.prompts->uninvited, 3);
        const QVector<Comparison::Row> &rows = bench.prompts->comparisons[2].rows;
        QCOMPARE(rows.size(), 9 + kNumCyclePhases);
        QCOMPARE(rows[0].offered, "A"_s);
        QVERIFY(rows[0].isDifferent());
    }

    void projectDescriptionIsNotAskedAfterTheUserLeft()
    {
        Bench bench;
        bench.say(projectNamed("Deckel"));
        emit bench.view.connectToAddress("127.0.0.1"_s); // leaves whatever box there was
        QTest::qWait(150);
        QVERIFY(bench.prompts->questions.empty());
    }

    void projectQuestionWaitsForTyping()
    {
        ControllerOptions options;
        options.typingPause = 200;
        Bench bench(options);
        QLineEdit field;
        bench.say(projectNamed("Deckel"));
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(&field, Qt::Key_A);
            QTest::qWait(60);
            QVERIFY(bench.prompts->questions.empty());
        }
        QTRY_COMPARE(bench.prompts->questions.size(), std::size_t(1));
        QCOMPARE(field.text(), "aaaa"_s);
    }

    void floodOfProjectDescriptionsDoesNotStackQuestions()
    {
        Bench bench;
        bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        bool flooded = false;
        bench.prompts->whileOpen = [&] {
            for (int i = 0; i < 1000 && !flooded; ++i)
                bench.say(projectNamed("P" + QByteArray::number(i)));
            flooded = true;
            QCoreApplication::processEvents();
        };
        bench.say(projectNamed("first"));
        QTRY_COMPARE(bench.model.projectData().name, "P999"_s); // the newest
        QTest::qWait(150);
        QCOMPARE(bench.prompts->questions.size(), std::size_t(2));
        QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
    }

    void linesWaitWhileProjectQuestionIsUp()
    {
        Bench bench;
        bench.prompts->answers = {QMessageBox::Yes};
        bench.prompts->whileOpen = [&] {
            bench.say("run=1");
            bench.say("0;1;1;1;1;1");
            bench.say("0;2;2;2;2;2");
            bench.say("run=0");
            QTest::qWait(60);
            QCOMPARE(bench.shots(), 0);
        };
        bench.say(projectNamed("Deckel"));
        QTRY_COMPARE(bench.samples(0, 0), (QVector<double>{1, 2}));
        QVERIFY(!bench.controller.isRecordingRunning());
    }

    void projectQuestionWaitsForOtherDialog()
    {
        Bench bench;
        bench.recordShots(1);
        bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        bool happened = false;
        bench.prompts->whileOpen = [&] {
            if (std::exchange(happened, true))
                return;
            bench.say(projectNamed("Deckel"));
            bench.say("0;5;5;5;5;5"); // a dialog of the user does not hold up samples
            bench.controller.connectionError(QAbstractSocket::RemoteHostClosedError);
            QTest::qWait(60);
            QVERIFY(bench.prompts->messages.empty());
            QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
            QCOMPARE(bench.samples(0, 0), (QVector<double>{1, 5}));
        };
        bench.controller.onTabOszi_deleteMeasurements("1"_s);
        QTRY_COMPARE(bench.model.projectData().name, "Deckel"_s);
        QCOMPARE(bench.prompts->messages.size(), std::size_t(1));
        QCOMPARE(bench.prompts->addressDialogs, 1);
        QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
    }
};

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
