#include "bench.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

class TestProjects : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }
    void newProject_data();
    void newProject();
    void saveNames_data();
    void saveNames();
    void existingFileIsNotReplacedUnasked();
    void openProject();
    void openWithUnsavedChanges_data();
    void openWithUnsavedChanges();
    void openFails();
    void recordingGoesOnInTheNextProject_data();
    void recordingGoesOnInTheNextProject();
    void linesAndEditsDuringSaveComeAfterwards();
    void quit_data();
    void quit();
    void samplesDuringQuitQuestionAreAskedAbout();
    void calibration();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestProjects::newProject_data()
{
    QTest::addColumn<bool>("modified");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("saveName");
    QTest::addColumn<bool>("cleared");
    const QString good = path(QStringLiteral("new.vnt"));
    QTest::newRow("nothing to save") << false << 0 << QString() << true;
    QTest::newRow("Speichern") << true << int(QMessageBox::Save) << good << true;
    QTest::newRow("Verwerfen") << true << int(QMessageBox::Discard) << QString() << true;
    QTest::newRow("Speichern, cancelled") << true << int(QMessageBox::Save) << QString() << false;
    QTest::newRow("Speichern, fails") << true << int(QMessageBox::Save) << path(QStringLiteral("no/such/a.vnt"))
                                      << false;
}

void TestProjects::newProject()
{
    QFETCH(bool, modified);
    QFETCH(int, answer);
    QFETCH(QString, saveName);
    QFETCH(bool, cleared);
    Bench bench;
    bench.recordShots(2);
    bench.model.setProjectModifiedFlag(modified);
    if (answer)
        bench.prompts->answers = {QMessageBox::StandardButton(answer)};
    bench.prompts->saveNames = {saveName};
    emit bench.view.newProject();
    QCOMPARE(bench.shots(), cleared ? 0 : 2);
    QCOMPARE(bench.model.isProjectModified(), !cleared);
    QCOMPARE(bench.prompts->questions.size(), std::size_t(modified ? 1 : 0));
    if (modified)
        QCOMPARE(bench.prompts->questions[0].text, QStringLiteral("Projekt speichern?"));
    QVERIFY(bench.slotsMatchModel());
    QVERIFY(bench.model.currentFile().isEmpty());
}

void TestProjects::saveNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("suffix") << QStringLiteral("suffix.vnt") << QStringLiteral("suffix.vnt");
    QTest::newRow("number behind a point") << QStringLiteral("Teil 1.2") << QStringLiteral("Teil 1.2.vnt");
}

void TestProjects::saveNames()
{
    QFETCH(QString, typed);
    QFETCH(QString, written);
    Bench bench;
    bench.recordShots(1);
    bench.prompts->saveNames = {path(typed)};
    emit bench.view.saveProject(); // has no name yet
    QCOMPARE(bench.prompts->fileDialogs, QStringList{QStringLiteral("Projekt speichern|Ventaro Dateien (*.vnt)")});
    QVERIFY(QFile::exists(path(written)));
    QCOMPARE(bench.model.currentFile(), path(written));
    QVERIFY(!bench.model.isProjectModified());
    QVERIFY(bench.prompts->questions.empty());
    bench.recordShots(1);
    emit bench.view.saveProject(); // has one now
    QCOMPARE(bench.prompts->fileDialogs.size(), 1);
    QVERIFY(!bench.model.isProjectModified());
}

void TestProjects::existingFileIsNotReplacedUnasked()
{
    QFile old(path(QStringLiteral("old.vnt")));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write("precious");
    old.close();
    Bench bench;
    bench.prompts->saveNames = {path(QStringLiteral("old"))};
    bench.prompts->answers = {QMessageBox::No};
    emit bench.view.saveProjectAs();
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("precious"));
}

void TestProjects::openProject()
{
    Bench bench;
    bench.recordShots(3);
    bench.prompts->saveNames = {path(QStringLiteral("open.vnt"))};
    emit bench.view.saveProject();
    emit bench.view.newProject();
    QCOMPARE(bench.shots(), 0);
    bench.prompts->openNames = {QString(), path(QStringLiteral("open.vnt"))};
    emit bench.view.openProject(); // cancelled
    QCOMPARE(bench.shots(), 0);
    emit bench.view.openProject();
    QCOMPARE(bench.prompts->fileDialogs.last(), QStringLiteral("Projekt öffnen|Ventaro Dateien (*.vnt)"));
    QCOMPARE(bench.firstSamples(4), (QVector<double>{1, 2, 3}));
    QVERIFY(bench.slotsMatchModel());
    QVERIFY(!bench.model.isProjectModified());
    QCOMPARE(bench.controller.seriesIndex(0), -1);
    bench.say("0;9;9;9;9;9"); // a late answer must not land in a shot of the file
    QCOMPARE(bench.samples(0, 2), QVector<double>{3});
    QVERIFY(bench.prompts->questions.empty());
}

void TestProjects::openWithUnsavedChanges_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("saveName");
    QTest::addColumn<bool>("opened");
    QTest::newRow("Speichern") << int(QMessageBox::Save) << path(QStringLiteral("kept.vnt")) << true;
    QTest::newRow("Speichern, cancelled") << int(QMessageBox::Save) << QString() << false;
    QTest::newRow("Verwerfen") << int(QMessageBox::Discard) << QString() << true;
    QTest::newRow("dropped file, cancelled") << int(QMessageBox::Save) << QString() << false;
    QTest::newRow("dropped file") << int(QMessageBox::Discard) << QString() << true;
}

void TestProjects::openWithUnsavedChanges()
{
    QFETCH(int, answer);
    QFETCH(QString, saveName);
    QFETCH(bool, opened);
    const QString file = path(QStringLiteral("other.vnt"));
    QVERIFY(Model(QString()).save(file));
    Bench bench;
    bench.recordShots(2);
    bench.prompts->openNames = {file};
    bench.prompts->saveNames = {saveName};
    bench.prompts->answers = {QMessageBox::StandardButton(answer)};
    if (QByteArray(QTest::currentDataTag()).startsWith("dropped"))
        emit bench.view.openProjectFile(file);
    else
        emit bench.view.openProject();
    QCOMPARE(bench.shots(), opened ? 0 : 2);
    QCOMPARE(bench.model.currentFile(), opened ? file : QString());
    QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
    if (!saveName.isEmpty())
        QVERIFY(QFile::exists(saveName));
}

void TestProjects::openFails()
{
    Bench bench;
    bench.recordShots(1);
    bench.model.setProjectModifiedFlag(false);
    bench.prompts->openNames = {path(QStringLiteral("gone %1 %2.vnt"))};
    emit bench.view.openProject();
    QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
    QCOMPARE(bench.prompts->warnings[0].text,
             QStringLiteral("Cannot open file ") + path(QStringLiteral("gone %1 %2.vnt")) + QStringLiteral(" !."));
    QCOMPARE(bench.firstSamples(), QVector<double>{1});
    QCOMPARE(bench.controller.seriesIndex(0), 0);
}

void TestProjects::recordingGoesOnInTheNextProject_data()
{
    QTest::addColumn<QByteArray>("next");
    for (const char *next : {"new", "open", "clear"})
        QTest::newRow(next) << QByteArray(next);
}

void TestProjects::recordingGoesOnInTheNextProject()
{
    QFETCH(QByteArray, next);
    const QString file = path(QStringLiteral("before.vnt"));
    Bench bench;
    bench.recordShots(2);
    QVERIFY(bench.model.save(file));
    bench.say("run=1");
    bench.say("0;3;3;3;3;3");
    bench.prompts->answers = {next == "clear" ? QMessageBox::Ok : QMessageBox::Discard};
    bench.prompts->openNames = {file};
    bench.model.setProjectModifiedFlag(next != "new"); // without the question the link stays
    if (next == "new")
        bench.prompts->answers.clear(), emit bench.view.newProject();
    else if (next == "open")
        emit bench.view.openProject();
    else
        bench.controller.onTabProject_clearDataClicked();
    QVERIFY(bench.controller.isRecordingRunning());
    bench.say("0;4;4;4;4;4");
    bench.say("0;5;5;5;5;5");
    QCOMPARE(bench.firstSamples(), next == "open" ? (QVector<double>{1, 2, 4}) : QVector<double>{4});
    QCOMPARE(bench.samples(0, bench.shots() - 1), (QVector<double>{4, 5}));
    QVERIFY(bench.slotsMatchModel());
}

void TestProjects::linesAndEditsDuringSaveComeAfterwards()
{
    const QString file = path(QStringLiteral("during.vnt"));
    Bench bench;
    bench.say("run=1");
    bench.say("0;1;1;1;1;1");
    bench.prompts->saveNames = {file};
    bool said = false;
    bench.model.setYield([&](int) {
        if (std::exchange(said, true))
            return;
        bench.say("0;2;2;2;2;2");
        bench.say("0;3;3;3;3;3");
        bench.controller.onTabProject_onPhaseEditChanged(1, QStringLiteral("umbenannt"));
        QCOMPARE(bench.samples(0, 0).size(), 1);
    });
    emit bench.view.saveProject();
    QVERIFY(said);
    QTRY_COMPARE(bench.samples(0, 0), (QVector<double>{1, 2, 3}));
    QCOMPARE(bench.model.phaseName(1), QStringLiteral("umbenannt"));
    QVERIFY(bench.model.isProjectModified());
    Model reopened(file);
    QCOMPARE(*reopened.measurement(0, 0), QVector<double>{1});
    QVERIFY(reopened.phaseName(1) != QLatin1String("umbenannt"));
}

void TestProjects::quit_data()
{
    QTest::addColumn<bool>("modified");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("saveName");
    QTest::addColumn<bool>("quits");
    const QString good = path(QStringLiteral("quit.vnt"));
    QTest::newRow("unchanged, go on") << false << int(QMessageBox::Ok) << QString() << true;
    QTest::newRow("unchanged, Abbrechen") << false << int(QMessageBox::Cancel) << QString() << false;
    QTest::newRow("Speichern") << true << int(QMessageBox::Save) << good << true;
    QTest::newRow("Speichern, cancelled") << true << int(QMessageBox::Save) << QString() << false;
    QTest::newRow("Speichern, fails") << true << int(QMessageBox::Save) << path(QStringLiteral("no/such/q.vnt"))
                                      << false;
    QTest::newRow("Verwerfen") << true << int(QMessageBox::Discard) << QString() << true;
    QTest::newRow("Abbrechen") << true << int(QMessageBox::Cancel) << QString() << false;
}

void TestProjects::quit()
{
    QFETCH(bool, modified);
    QFETCH(int, answer);
    QFETCH(QString, saveName);
    QFETCH(bool, quits);
    Bench bench;
    bench.recordShots(1);
    bench.model.setProjectModifiedFlag(modified);
    bench.prompts->answers = {QMessageBox::StandardButton(answer)};
    bench.prompts->saveNames = {saveName};
    bool ranOn = false;
    QTimer::singleShot(0, &bench.view, [&] {
        bench.view.close(); // is a wish to quit
        QTimer::singleShot(100, &bench.view, [&] {
            ranOn = true;
            QCoreApplication::quit();
        });
    });
    bench.view.show();
    QCoreApplication::exec();
    QCOMPARE(ranOn, !quits);
    QCOMPARE(bench.view.isVisible(), true);
    QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
    QCOMPARE(bench.prompts->questions[0].text, modified ? QStringLiteral("Vor dem Beenden Ventaro Projekt speichern?")
                                                        : QStringLiteral("Ventaro beenden?"));
    QCOMPARE(bench.firstSamples(), QVector<double>{1});
    QCOMPARE(!saveName.isEmpty() && QFile::exists(saveName), modified && quits && !saveName.isEmpty());
}

void TestProjects::samplesDuringQuitQuestionAreAskedAbout()
{
    Bench bench;
    bench.say("run=1");
    bench.model.setProjectModifiedFlag(false);
    bench.prompts->answers = {QMessageBox::Ok, QMessageBox::Cancel};
    bench.prompts->whileOpen = [&] { bench.say("0;1;1;1;1;1"); };
    emit bench.view.quit();
    QCOMPARE(bench.prompts->questions.size(), std::size_t(2));
    QVERIFY(bench.controller.isRecordingRunning());
}

void TestProjects::calibration()
{
    Bench bench;
    bench.recordShots(1);
    bench.prompts->whileOpen = [&] { bench.say("0;2.5;-1;0;4;5"); };
    emit bench.view.calibrate();
    QCOMPARE(bench.prompts->messages.size(), std::size_t(1));
    QCOMPARE(bench.model.offset(0), -2.5);
    QCOMPARE(bench.model.offset(1), 1.0);

    bench.say("run=1"); // no box while recording
    bench.say("0;7;7;7;7;7");
    emit bench.view.calibrate();
    QCOMPARE(bench.prompts->messages.size(), std::size_t(1));
    QCOMPARE(bench.model.offset(3), -7.0);
}

QTEST_MAIN(TestProjects)
#include "tst_projects.moc"
