#include "bench.h"

#include "tests/support/logcapture.h"
#include "view/tabblackbox.h"
#include "view/tabproject.h"

#include <QSignalSpy>

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
    void sampleLines_data();
    void sampleLines();
    void valuesInThousandthsUntilSensorsAreDescribed();
    void sampleLineWithoutShotOnlyAnnounces();
    void startOfRecording();
    void echoOfStartTwiceLeavesNoEmptyShot();
    void answerAfterStopLandsInNewestShot();
    void clockEcho_data();
    void clockEcho();
    void listBlock();
    void sensorDescription();
    void projectDescription_data();
    void projectDescription();
    void floodOfProjectDescriptionsDoesNotStackQuestions();
    void linesWaitWhileProjectQuestionIsUp();
    void projectQuestionWaitsForOtherDialog();
    void nothingCrashesOn_data();
    void nothingCrashesOn();
};

void TestMessages::sampleLines_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QVector<double>>("stored"); // one sample a sensor; empty: nothing is stored
    QTest::newRow("five values") << QByteArray("17;1;2;3;4;5") << QVector<double>{1, 2, 3, 4, 5};
    QTest::newRow("negative leading field") << QByteArray("-1.5;2;3") << QVector<double>{2, 3, 0, 0, 0};
    QTest::newRow("more than five") << QByteArray("0;1;2;3;4;5;6;7") << QVector<double>{1, 2, 3, 4, 5};
    QTest::newRow("empty and unparsable fields") << QByteArray("0;;x;1e3") << QVector<double>{0, 0, 1000, 0, 0};
    QTest::newRow("not finite") << QByteArray("0;nan;inf;-inf;1e999;7") << QVector<double>{0, 0, 0, 0, 7};
    QTest::newRow("two fields") << QByteArray("0;1") << QVector<double>{};
    QTest::newRow("one field") << QByteArray("12") << QVector<double>{};
}

void TestMessages::sampleLines()
{
    QFETCH(QByteArray, line);
    QFETCH(QVector<double>, stored);
    Bench bench;
    bench.say("run=1");
    const LogCapture log;
    bench.say(line);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        QCOMPARE(bench.samples(sensor, 0), stored.isEmpty() ? QVector<double>() : stored.mid(sensor, 1));
    QCOMPARE(log.contains(QStringLiteral("received data. ERROR: No List!")), stored.isEmpty());
}

void TestMessages::valuesInThousandthsUntilSensorsAreDescribed()
{
    Bench bench;
    bench.controller.onTimerWaitForDeviceDescription_timeout();
    QVERIFY(!bench.controller.areValuesInThousandths());
    bench.controller.onTimerWaitForSensorDescription_timeout();
    bench.say("run=1");
    bench.say("0;1500;250");
    QCOMPARE(bench.samples(0, 0), QVector<double>{1.5});
    QCOMPARE(bench.samples(1, 0), QVector<double>{0.25});
    bench.say("<sensorDescription numGroups=\"0\"/>");
    bench.say("0;1500;250");
    QCOMPARE(bench.samples(0, 0), (QVector<double>{1.5, 1500}));
}

void TestMessages::sampleLineWithoutShotOnlyAnnounces()
{
    Bench bench;
    QSignalSpy changed(&bench.model, &Model::dataChanged);
    bench.say("0;1;2;3;4;5");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(bench.shots(), 0);
    QVERIFY(!bench.model.isProjectModified());
}

void TestMessages::startOfRecording()
{
    Bench bench;
    bench.recordShots(2);
    const QDateTime before = QDateTime::currentDateTime();
    QSignalSpy changed(&bench.model, &Model::dataChanged);
    bench.model.setProjectModifiedFlag(false);
    bench.say("run=1");
    QVERIFY(bench.controller.isRecordingRunning());
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        QCOMPARE(bench.model.numChannels(sensor), 3);
        QCOMPARE(bench.controller.seriesIndex(sensor), 2);
        QVERIFY(bench.view.tabOszi()->row(sensor)->isShown(2));
    }
    QVERIFY(bench.slotsMatchModel());
    QVERIFY(bench.model.timestamp(2) >= before);
    QVERIFY(!changed.isEmpty());
    QVERIFY(bench.model.isProjectModified());
    bench.say("run=0");
    QVERIFY(!bench.controller.isRecordingRunning());
}

void TestMessages::echoOfStartTwiceLeavesNoEmptyShot()
{
    Bench bench;
    bench.say("run=1");
    bench.say("run=1");
    QCOMPARE(bench.shots(), 1);
    bench.say("0;1;1;1;1;1");
    bench.say("run=1"); // without a stop, but with data: a shot of its own
    QCOMPARE(bench.shots(), 2);
}

void TestMessages::answerAfterStopLandsInNewestShot()
{
    Bench bench;
    bench.recordShots(2);
    bench.say("0;9;9;9;9;9");
    QCOMPARE(bench.samples(4, 1), (QVector<double>{2, 9}));
    QCOMPARE(bench.samples(4, 0), QVector<double>{1});
}

void TestMessages::clockEcho_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("clock"); // 40 before
    QTest::newRow("plain") << QByteArray("t=250") << 250;
    QTest::newRow("white space") << QByteArray("t= 5 ") << 5;
    QTest::newRow("same") << QByteArray("t=40") << 40;
    QTest::newRow("text") << QByteArray("t=abc") << -1;
    QTest::newRow("nothing") << QByteArray("t=") << -1;
    QTest::newRow("zero") << QByteArray("t=0") << -1;
    QTest::newRow("negative") << QByteArray("t=-10") << -1;
    QTest::newRow("huge") << QByteArray("t=2147483647") << -1;
    QTest::newRow("no int") << QByteArray("t=99999999999") << -1;
}

void TestMessages::clockEcho()
{
    QFETCH(QByteArray, line);
    QFETCH(int, clock);
    Bench bench;
    bench.say("t=40");
    QSignalSpy changed(&bench.model, &Model::projectChanged);
    const LogCapture log;
    bench.say(line);
    QCOMPARE(bench.model.clock(), clock < 0 ? 40 : clock);
    QCOMPARE(bench.view.tabOszi()->row(3)->clock(), clock < 0 ? 40 : clock);
    QCOMPARE(changed.count(), clock < 0 ? 0 : 1);
    QCOMPARE(log.contains(QStringLiteral("ERROR")), clock < 0);
    QCOMPARE(log.contains(QStringLiteral("void Model::setClock(int)")), clock >= 0);
}

void TestMessages::listBlock()
{
    Bench bench;
    TabBlackBox *tab = bench.view.tabBlackBox();
    bench.say("outside.bb");
    bench.say("list {");
    for (const char *line : {".", "..", "  day  one ", "file.bb", "List {"})
        bench.say(line);
    QVERIFY(tab->list().isEmpty());
    bench.say("} list");
    QCOMPARE(tab->list(),
             (QStringList{QStringLiteral("day one"), QStringLiteral("file.bb"), QStringLiteral("List {")}));
    bench.say("outside.bb");
    bench.say("list {");
    bench.say("} list");
    QVERIFY(tab->list().isEmpty());
}

void TestMessages::sensorDescription()
{
    Bench bench;
    QSignalSpy changed(&bench.model, &Model::projectChanged);
    bench.say("<sensorDescription numGroups=\"1\"><group groupPos=\"0\" name=\"Form\" numSensors=\"2\">"
              "<sensor name=\"Druck\" type=\"P\" min=\"-1\" max=\"250\" unit=\"bar\"/>"
              "<sensor name=\"Wand\" type=\"T\" min=\"0\" max=\"300\" unit=\"\xC2\xB0"
              "C\"/></group>");
    const SensorGroup &group = bench.model.sensorDescription().sensorGroup(0);
    QCOMPARE(group.numSensors(), 5);
    QCOMPARE(group.sensorName(0), QStringLiteral("Druck"));
    QCOMPARE(group.sensorUnit(1), QStringLiteral("°C"));
    QCOMPARE(group.sensorMaximum(0), 250.0);
    QVERIFY(!changed.isEmpty());
}

void TestMessages::projectDescription_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("yes") << int(QMessageBox::Yes);
    QTest::newRow("no") << int(QMessageBox::No);
}

void TestMessages::projectDescription()
{
    QFETCH(int, answer);
    const bool yes = answer == QMessageBox::Yes;
    Bench bench;
    bench.prompts->answers = {QMessageBox::StandardButton(answer)};
    const ProjectData before = bench.model.projectData();
    QSignalSpy changed(&bench.model, &Model::projectChanged);
    bench.say(projectNamed("Deckel"));
    QCOMPARE(bench.model.hardwareVersion(), QStringLiteral("2.1"));
    QCOMPARE(changed.count(), 1); // the versions are on display
    QTRY_COMPARE(bench.prompts->questions.size(), std::size_t(1));
    QCOMPARE(bench.prompts->questions[0].title, QStringLiteral("Projektbeschreibung empfangen"));
    QCOMPARE(bench.prompts->questions[0].text,
             QStringLiteral("Soll die aktuelle Projektbeschreibung durch die empfangenen Daten überschrieben werden?"));
    ProjectData expected = before;
    if (yes)
        expected = {QStringLiteral("Deckel"),
                    QStringLiteral("4711"),
                    QStringLiteral("Anna"),
                    QStringLiteral("1.2.2020"),
                    QStringLiteral("Werk"),
                    900,
                    1.5,
                    2.25,
                    80};
    QCOMPARE(bench.model.projectData(), expected);
    QCOMPARE(bench.model.phaseName(4) == QLatin1String("auf"), yes);
    QCOMPARE(bench.model.isProjectModified(), yes);
}

void TestMessages::floodOfProjectDescriptionsDoesNotStackQuestions()
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
    QTRY_COMPARE(bench.model.projectData().name, QStringLiteral("P999")); // the newest
    QTest::qWait(150);
    QCOMPARE(bench.prompts->questions.size(), std::size_t(2));
    QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
}

void TestMessages::linesWaitWhileProjectQuestionIsUp()
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

void TestMessages::projectQuestionWaitsForOtherDialog()
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
    bench.controller.onTabOszi_deleteMeasurements(QStringLiteral("1"));
    QTRY_COMPARE(bench.model.projectData().name, QStringLiteral("Deckel"));
    QCOMPARE(bench.prompts->messages.size(), std::size_t(1));
    QCOMPARE(bench.prompts->addressDialogs, 1);
    QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
}

void TestMessages::nothingCrashesOn_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("counts over nine") << QByteArray(
        "<sensorDescription numGroups=\"99\"><group groupPos=\"99\" name=\"x\" numSensors=\"99\"><sensor name=\"a\"/>");
    QTest::newRow("no attributes") << QByteArray("<sensorDescription><group><sensor><sensor><group><sensor>");
    QTest::newRow("open quotation mark") << QByteArray("<deviceDescription hardwareVersion=\"");
    QTest::newRow("nothing behind") << QByteArray("<deviceDescription");
    QTest::newRow("project without attributes") << QByteArray("<deviceDescription <projectDescription");
    QTest::newRow("many groups") << "<deviceDescription numGroups=\"9\"" + QByteArray("<group").repeated(160);
    QTest::newRow("many sensors") << "<sensorDescription numGroups=\"9\"<group" + QByteArray("<sensor").repeated(140);
    QTest::newRow("NUL bytes") << QByteArray("ab\0cd", 5);
    QTest::newRow("only dashes") << QByteArray("-----");
    QTest::newRow("separators") << QByteArray(1000, ';').prepend('1');
    QTest::newRow("list end alone") << QByteArray("} list");
}

void TestMessages::nothingCrashesOn()
{
    QFETCH(QByteArray, line);
    Bench bench;
    bench.prompts->answers = {QMessageBox::Yes};
    bench.say(line);
    QTest::qWait(line.contains("<projectDescription") ? 150 : 5); // until the question has been asked
    QCOMPARE(bench.prompts->questions.empty(), !line.contains("<projectDescription"));
    bench.recordShots(1);
    QCOMPARE(bench.firstSamples(), QVector<double>{1});
    QVERIFY(bench.model.sensorDescription().sensorGroup(0).numSensors() >= kNumSensors);
}

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
