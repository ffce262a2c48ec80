#include "bench.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

class TestProjects : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }

    void unsavedChanges_data()
    {
        // how: "drop": a file on the window
        columns<QByteArray, int, QString, bool>("how", "answer", "saveName", "goesOn");
        row("new, nothing to save", "new"_ba, 0, QString(), true);
        row("new, Speichern", "new"_ba, int(QMessageBox::Save), path("new.vnt"_s), true);
        row("new, Verwerfen", "new"_ba, int(QMessageBox::Discard), QString(), true);
        row("new, cancelled", "new"_ba, int(QMessageBox::Save), QString(), false);
        row("new, Speichern fails", "new"_ba, int(QMessageBox::Save), path("no/such/a.vnt"_s), false);
        row("open, Speichern", "open"_ba, int(QMessageBox::Save), path("kept.vnt"_s), true);
        row("open, cancelled", "open"_ba, int(QMessageBox::Save), QString(), false);
        row("drop, cancelled", "drop"_ba, int(QMessageBox::Save), QString(), false);
        row("drop, Verwerfen", "drop"_ba, int(QMessageBox::Discard), QString(), true);
    }

    void unsavedChanges()
    {
        QFETCH(QByteArray, how);
        QFETCH(int, answer);
        QFETCH(QString, saveName);
        QFETCH(bool, goesOn);
        const QString file = path("other.vnt"_s);
        QVERIFY(Model(QString()).save(file));
        Bench bench;
        bench.recordShots(2);
        bench.model.setProjectModifiedFlag(answer != 0);
        if (answer)
            bench.prompts->answers = {QMessageBox::StandardButton(answer)};
        bench.prompts->saveNames = {saveName};
        bench.prompts->openNames = {file};
        if (how == "new")
            emit bench.view.newProject();
        else if (how == "open")
            emit bench.view.openProject();
        else
            emit bench.view.openProjectFile(file);
        QCOMPARE(bench.shots(), goesOn ? 0 : 2);
        QCOMPARE(bench.model.isProjectModified(), !goesOn);
        QCOMPARE(bench.model.currentFile(), goesOn && how != "new" ? file : QString());
        QCOMPARE(bench.prompts->questions.size(), std::size_t(answer ? 1 : 0));
        if (answer)
            QCOMPARE(bench.prompts->questions[0].text, "Projekt speichern?"_s);
        QVERIFY(saveName.isEmpty() || QFile::exists(saveName) == goesOn);
        QVERIFY(bench.slotsMatchModel());
    }

    void saveNames_data()
    {
        columns<QString, QString>("typed", "written");
        row("suffix", "suffix.vnt", "suffix.vnt");
        row("capitals", "SUFFIX.VNT", "SUFFIX.VNT");
        row("name behind a point", "Fa.Neu", "Fa.Neu.vnt");
    }

    void saveNames()
    {
        QFETCH(QString, typed);
        QFETCH(QString, written);
        Bench bench;
        bench.recordShots(1);
        bench.prompts->saveNames = {path(typed)};
        emit bench.view.saveProject(); // has no name yet
        QCOMPARE(bench.prompts->fileDialogs, QStringList{"Projekt speichern|Ventaro Dateien (*.vnt)"_s});
        QVERIFY(QFile::exists(path(written)));
        QCOMPARE(bench.model.currentFile(), path(written));
        QVERIFY(!bench.model.isProjectModified());
        QVERIFY(bench.prompts->questions.empty());
        bench.recordShots(1);
        emit bench.view.saveProject(); // has one now
        QCOMPARE(bench.prompts->fileDialogs.size(), 1);
        QVERIFY(!bench.model.isProjectModified());
    }

    void openProject()
    {
        Bench bench;
        bench.recordShots(3);
        bench.prompts->saveNames = {path("open.vnt"_s)};
        emit bench.view.saveProject();
        emit bench.view.newProject();
        QCOMPARE(bench.shots(), 0);
        bench.prompts->openNames = {QString(), path("open.vnt"_s)};
        emit bench.view.openProject(); // cancelled
        QCOMPARE(bench.shots(), 0);
        emit bench.view.openProject();
        QCOMPARE(bench.prompts->fileDialogs.last(), "Projekt öffnen|Ventaro Dateien (*.vnt)"_s);
        QCOMPARE(bench.firstSamples(4), (QVector<double>{1, 2, 3}));
        QVERIFY(bench.slotsMatchModel());
        QVERIFY(!bench.model.isProjectModified());
        QCOMPARE(bench.controller.seriesIndex(0), -1);
        bench.say("0;9;9;9;9;9"); // a late answer must not land in a shot of the file
        QCOMPARE(bench.samples(0, 2), QVector<double>{3});
        QVERIFY(bench.prompts->questions.empty());
    }

    void openFails()
    {
        Bench bench;
        bench.recordShots(1);
        bench.model.setProjectModifiedFlag(false);
        bench.prompts->openNames = {path("gone %1 %2.vnt"_s)};
        emit bench.view.openProject();
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
        const QString text = "Cannot open file "_s + path("gone %1 %2.vnt"_s) + " !.\n\nDie Datei ist nicht da.\n"_s;
        QVERIFY2(bench.prompts->warnings[0].text.startsWith(text), qPrintable(bench.prompts->warnings[0].text));
        QCOMPARE(bench.firstSamples(), QVector<double>{1});
        QCOMPARE(bench.controller.seriesIndex(0), 0);
    }

    void recordingGoesOnInTheNextProject_data()
    {
        columns<QByteArray>("next");
        for (const char *next : {"new", "open", "clear"})
            row(next, QByteArray(next));
    }

    void recordingGoesOnInTheNextProject()
    {
        QFETCH(QByteArray, next);
        const QString file = path("before.vnt"_s);
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
        QCOMPARE(bench.controller.seriesIndex(0), -1); // nothing gets into shots that came from elsewhere
        bench.say("0;4;4;4;4;4");
        bench.say("0;5;5;5;5;5");
        QCOMPARE(bench.firstSamples(), next == "open" ? (QVector<double>{1, 2, 4}) : QVector<double>{4});
        QCOMPARE(bench.samples(0, bench.shots() - 1), (QVector<double>{4, 5}));
        QVERIFY(bench.slotsMatchModel());
    }

    void linesAndEditsDuringSaveComeAfterwards()
    {
        const QString file = path("during.vnt"_s);
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
            bench.controller.onTabProject_onPhaseEditChanged(1, "umbenannt"_s);
            QCOMPARE(bench.samples(0, 0).size(), 1);
        });
        emit bench.view.saveProject();
        QVERIFY(said);
        QTRY_COMPARE(bench.samples(0, 0), (QVector<double>{1, 2, 3}));
        QCOMPARE(bench.model.phaseName(1), "umbenannt"_s);
        QVERIFY(bench.model.isProjectModified());
        Model reopened(file);
        QCOMPARE(*reopened.measurement(0, 0), QVector<double>{1});
        QVERIFY(reopened.phaseName(1) != "umbenannt"_s);
    }

    void quit_data()
    {
        columns<bool, int, QString, bool>("modified", "answer", "saveName", "quits");
        const QString good = path("quit.vnt"_s);
        row("unchanged, go on", false, int(QMessageBox::Ok), QString(), true);
        row("unchanged, Abbrechen", false, int(QMessageBox::Cancel), QString(), false);
        row("Speichern", true, int(QMessageBox::Save), good, true);
        row("Speichern, cancelled", true, int(QMessageBox::Save), QString(), false);
        row("Speichern, fails", true, int(QMessageBox::Save), path("no/such/q.vnt"_s), false);
        row("Verwerfen", true, int(QMessageBox::Discard), QString(), true);
        row("Abbrechen", true, int(QMessageBox::Cancel), QString(), false);
    }

    void quit()
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
            bench.view.close(); // only asks to quit
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
        QCOMPARE(bench.prompts->questions[0].text,
                 modified ? "Vor dem Beenden Ventaro Projekt speichern?"_s : "Ventaro beenden?"_s);
        QCOMPARE(bench.firstSamples(), QVector<double>{1});
        QCOMPARE(!saveName.isEmpty() && QFile::exists(saveName), modified && quits && !saveName.isEmpty());
    }

    void samplesDuringQuitQuestionAreAskedAbout()
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

    void calibration()
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

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestProjects)
#include "tst_projects.moc"
