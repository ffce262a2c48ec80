#include "bench.h"

#include "view/tabblackbox.h"

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
    void echoOfStartTwiceLeavesNoEmptyShot();
    void clockEcho_data();
    void clockEcho();
    void listBlock();
    void projectDescription_data();
    void projectDescription();
    void floodOfProjectDescriptionsDoesNotStackQuestions();
    void linesWaitWhileProjectQuestionIsUp();
    void projectQuestionWaitsForOtherDialog();
};

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

void TestMessages::clockEcho_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("clock"); // 40 before
    QTest::newRow("plain") << QByteArray("t=250") << 250;
    QTest::newRow("white space") << QByteArray("t= 5 ") << 5;
    QTest::newRow("text") << QByteArray("t=abc") << -1;
    QTest::newRow("zero") << QByteArray("t=0") << -1;
    QTest::newRow("huge") << QByteArray("t=2147483647") << -1;
}

void TestMessages::clockEcho()
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

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
