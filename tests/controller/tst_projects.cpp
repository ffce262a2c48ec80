#include "bench.h"
#include "controller/project/proposedname.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/project/tabproject.h"
#include "view/window/prompts/questions.h"

#include <QDir>
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
        // how: "drop": a file on the window; answer: 0: not asked, -1: the box is closed
        columns<QByteArray, int, QString, bool>("how", "answer", "saveName", "goesOn");
        row("new, nothing to save", "new"_ba, 0, QString(), true);
        row("new, Speichern", "new"_ba, int(QMessageBox::Save), path("new.vnt"_s), true);
        row("new, Verwerfen", "new"_ba, int(QMessageBox::Discard), QString(), true);
        row("new, cancelled", "new"_ba, int(QMessageBox::Save), QString(), false);
        row("new, Speichern fails", "new"_ba, int(QMessageBox::Save), path("no/such/a.vnt"_s), false);
        row("open, Speichern", "open"_ba, int(QMessageBox::Save), path("kept.vnt"_s), true);
        row("open, cancelled", "open"_ba, int(QMessageBox::Save), QString(), false);
        row("new, closed", "new"_ba, -1, QString(), false);
        row("open, closed", "open"_ba, -1, QString(), false);
        row("drop, closed", "drop"_ba, -1, QString(), false);
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
            bench.prompts->answers = {answer < 0 ? QMessageBox::NoButton : QMessageBox::StandardButton(answer)};
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

    void openFails_data()
    {
        columns<bool, bool>("modified", "recording");
        row("nothing to lose", false, false);
        row("unsaved changes", true, false); // nobody is asked about them for nothing
        row("recording", true, true);
    }

    void openFails()
    {
        QFETCH(bool, modified);
        QFETCH(bool, recording);
        Bench bench;
        bench.recordShots(1);
        if (recording)
            bench.say("run=1");
        bench.model.setProjectModifiedFlag(modified);
        bench.prompts->openNames = {path("gone %1 %2.vnt"_s)};
        emit bench.view.openProject();
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
        const QString text = "Cannot open file "_s + path("gone %1 %2.vnt"_s) + " !.\n\nDie Datei ist nicht da.\n"_s;
        QVERIFY2(bench.prompts->warnings[0].text.startsWith(text), qPrintable(bench.prompts->warnings[0].text));
        QVERIFY(bench.prompts->questions.empty() && bench.prompts->asked.empty());
        QCOMPARE(bench.model.isProjectModified(), modified);
        QCOMPARE(bench.firstSamples().value(0), 1.0);
        QCOMPARE(bench.controller.seriesIndex(0), recording ? 1 : 0);
        QCOMPARE(bench.controller.isRecordingRunning(), recording);
    }

    /// What is saved at the question is what is opened afterwards, also if it is the same file.
    void reopeningTheSameFileShowsWhatWasSaved()
    {
        Bench bench;
        bench.recordShots(1);
        bench.prompts->saveNames = {path("same.vnt"_s)};
        emit bench.view.saveProject();
        bench.recordShots(1);
        bench.prompts->answers = {QMessageBox::Save};
        emit bench.view.openProjectFile(path("same.vnt"_s));
        QCOMPARE(bench.firstSamples(), (QVector<double>{1, 2}));
        QVERIFY(!bench.model.isProjectModified());
    }

    void editsWhileReadingAheadAreKept()
    {
        QVERIFY(Model(QString()).save(path("ahead.vnt"_s)));
        Bench bench;
        bench.recordShots(1);
        bool renamed = false;
        bench.model.setYield([&](int) {
            if (!std::exchange(renamed, true))
                bench.controller.onTabProject_onPhaseEditChanged(1, "umbenannt"_s);
        });
        bench.prompts->answers = {QMessageBox::NoButton};
        emit bench.view.openProjectFile(path("ahead.vnt"_s));
        QVERIFY(renamed);
        QCOMPARE(bench.model.phaseName(1), "umbenannt"_s);
        QCOMPARE(bench.shots(), 1);
    }

    void replacingWhileRecording_data()
    {
        // choice: of the question about the recording, -2: not asked; answer: of that about saving
        columns<QByteArray, int, int, bool>("next", "choice", "answer", "replaced");
        row("open, stay", "open"_ba, 0, 0, false);
        row("open, closed", "open"_ba, Choice::kClosed, 0, false);
        row("open, then stay", "open"_ba, 1, int(QMessageBox::NoButton), false);
        row("open, Verwerfen", "open"_ba, 1, int(QMessageBox::Discard), true);
        row("open, Speichern", "open"_ba, 1, int(QMessageBox::Save), true);
        row("new, closed", "new"_ba, -2, int(QMessageBox::NoButton), false);
        row("new, Verwerfen", "new"_ba, -2, int(QMessageBox::Discard), true);
        row("new, Speichern", "new"_ba, -2, int(QMessageBox::Save), true);
    }

    void replacingWhileRecording()
    {
        QFETCH(QByteArray, next);
        QFETCH(int, choice);
        QFETCH(int, answer);
        QFETCH(bool, replaced);
        QVERIFY(Model(QString()).save(path("before.vnt"_s)));
        Bench bench;
        bench.say("run=1");
        bench.say("0;3;3;3;3;3");
        bench.model.setProjectModifiedFlag(next == "open"); // a shot that grows is unsaved anyway
        bench.prompts->choices = {choice};
        bench.prompts->answers = {QMessageBox::StandardButton(answer)};
        bench.prompts->saveNames = {path("recorded.vnt"_s)};
        if (next == "open")
            emit bench.view.openProjectFile(path("before.vnt"_s));
        else
            emit bench.view.newProject();
        QCOMPARE(bench.prompts->asked.size(), std::size_t(choice == -2 ? 0 : 1));
        QVERIFY(bench.prompts->asked.empty() || bench.prompts->asked[0].safest == 0);
        QCOMPARE(bench.controller.isRecordingRunning(), !replaced);
        bench.say("0;4;4;4;4;4"); // whatever the box still sends
        QCOMPARE(bench.samples(0, 0), replaced ? QVector<double>() : (QVector<double>{3, 4}));
        QCOMPARE(bench.shots(), replaced ? 0 : 1);
        QVERIFY(bench.slotsMatchModel());
    }

    void recordingGoesOnAfterClearing()
    {
        Bench bench;
        bench.recordShots(2);
        bench.say("run=1");
        bench.say("0;3;3;3;3;3");
        bench.prompts->answers = {QMessageBox::Ok};
        bench.controller.onTabProject_clearDataClicked();
        QVERIFY(bench.prompts->questions[0].text.startsWith(
            "Achtung: Alle Messdaten werden gelöscht!\n\nDas sind 3 Messungen.\n"_s));
        QCOMPARE(bench.controller.seriesIndex(0), -1);
        bench.say("0;4;4;4;4;4");
        bench.say("0;5;5;5;5;5");
        QCOMPARE(bench.samples(0, 0), (QVector<double>{4, 5}));
        QVERIFY(bench.slotsMatchModel());
    }

    void proposedNames_data()
    {
        columns<QString, QString>("name", "proposed");
        const auto row = [](const char *name, const char *proposed) {
            ::row(name, QString::fromUtf8(name), QString::fromUtf8(proposed));
        };
        row("Deckel 4", "Deckel 4.vnt");
        row("a/b\\c:d*e?f\"g<h>i|j", "a b c d e f g h i j.vnt");
        row("  ../../etc ", "etc.vnt");
        row("-rf Größe. ", "rf Größe.vnt");
        row("zwei\nZeilen\t!", "zwei Zeilen !.vnt");
        row("Con.alt", "_Con.alt.vnt");
        row(" ... ", "");
        row("", "");
    }

    void proposedNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, proposed);
        Bench bench;
        ProjectData data;
        data.name = name;
        bench.model.setProjectData(data);
        bench.view.questions().setLastFolder(m_folder.path());
        emit bench.view.saveProject();
        QCOMPARE(bench.prompts->fileStarts, QStringList{proposed.isEmpty() ? m_folder.path() : path(proposed)});
        QVERIFY(proposedFileName("ü"_s.repeated(300)).toUtf8().size() <= 200);
    }

    void projectsAndPicturesHaveFoldersOfTheirOwn()
    {
        for (const char *folder : {"projekte", "bilder"})
            QVERIFY(QDir(m_folder.path()).mkpath(QString::fromLatin1(folder)));
        Bench bench;
        bench.prompts->saveNames = {path("projekte/a.vnt"_s)};
        emit bench.view.saveProject();
        bench.prompts->openNames = {path("bilder/none.png"_s), QString(), QString()};
        emit bench.view.tabProject()->imageButtonClicked(0);
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
        emit bench.view.openProject();
        emit bench.view.tabProject()->imageButtonClicked(0);
        QCOMPARE(bench.prompts->fileStarts.mid(2), (QStringList{path("projekte"_s), path("bilder"_s)}));
        QCOMPARE(bench.view.questions().lastFolder(), path("bilder"_s));
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
        row("closed", true, int(QMessageBox::NoButton), path("closed.vnt"_s), false);
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
