#include "app/theme.h"
#include "model/model.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedprompts.h"
#include "view/home/tabhome.h"
#include "view/project/tabproject.h"
#include "view/window/view.h"

#include <QtWidgets>

#include <functional>

namespace {

struct Bench
{
    [[nodiscard]] QAction *action(const char *name) const { return view->findChild<QAction *>(QLatin1String(name)); }
    void setConnected(bool connected)
    {
        model.setConnected(connected);
        model.emitAppStateChanged();
    }

    Model model{QString()};
    ScriptedPrompts *prompts = nullptr; // owned by the view
    std::unique_ptr<View> view = std::make_unique<View>(&model, scripted(prompts));
};

QSettings settings()
{
    return QSettings("Tarnwald"_s, "Ventaro"_s);
}

} // namespace

using Question = std::function<int(View &)>;
using ViewSignal = void (View::*)();
Q_DECLARE_METATYPE(Question)
Q_DECLARE_METATYPE(ViewSignal)

class TestView : public QObject
{
    Q_OBJECT

private slots:
    void init() { settings().clear(); }

    void actionsEmitTheirSignal_data()
    {
        columns<ViewSignal>("signal");
        row("actionConnect", ViewSignal(&View::connectDisconnect));
        row("actionDisconnect", ViewSignal(&View::connectDisconnect));
        row("actionAbout", ViewSignal(&View::about));
        row("actionSaveTerminal", ViewSignal(&View::saveTerminal));
        row("actionSaveCSV", ViewSignal(&View::saveCSV));
        row("actionSaveOszi", ViewSignal(&View::saveOszi));
        row("actionNewProject", ViewSignal(&View::newProject));
        row("actionOpenProject", ViewSignal(&View::openProject));
        row("actionSaveProject", ViewSignal(&View::saveProject));
        row("actionSaveAs", ViewSignal(&View::saveProjectAs));
        row("actionCalibrate", ViewSignal(&View::calibrate));
        row("actionQuit", ViewSignal(&View::quit));
        row("actionOpenBlackBox", ViewSignal(&View::openImportBlackBoxData));
        row("actionFirmwareUpdate", ViewSignal(&View::firmwareUpdate));
    }

    void actionsEmitTheirSignal()
    {
        QFETCH(ViewSignal, signal);
        Bench bench;
        QAction *action = bench.action(QTest::currentDataTag());
        QVERIFY(action);
        const QSignalSpy spy(bench.view.get(), signal);
        action->setEnabled(true);
        action->trigger();
        QCOMPARE(spy.count(), 1);
    }

    void linkAndRecordingAreShown_data()
    {
        // What happened, one letter each: C connected, D disconnected, r recording, s stopped.
        columns<QString, QString, QString, QString>("events", "title", "connectText", "recordText");
        const QString title = "Ventaro - 8.0 7"_s;
        const QString off = title + " (disconnected)"_s;
        const QString connectText = "&Verbinden"_s;
        const QString disconnectText = "&Trennen"_s;
        const QString start = "&Start"_s;
        const QString stop = "&Stop"_s;
        row("connected", "C", title, disconnectText, start);
        row("disconnected", "D", off, connectText, start);
        row("connected, lost", "CD", off, connectText, start);
        row("recording", "Cr", title, disconnectText, stop);
        row("recorded", "Crs", title, disconnectText, start);
        row("lost while recording", "CrD", off, connectText, start);
        row("recording without a link", "Dr", off, connectText, stop);
    }

    void linkAndRecordingAreShown()
    {
        QFETCH(QString, events);
        Bench bench;
        bench.view->setTabEnabled(2, false);
        bench.view->setTabEnabled(3, false);
        for (const QChar event : events) {
            if (event == QLatin1Char('C') || event == QLatin1Char('D'))
                bench.setConnected(event == QLatin1Char('C'));
            else
                bench.view->setRecordingRunning(event == QLatin1Char('r'));
        }
        QTEST(bench.view->windowTitle(), "title");
        QTEST(bench.action("actionConnect")->text(), "connectText");
        QTEST(bench.action("actionStartRecording")->text(), "recordText");
        // Also without a connection: the last step of showing it enables both.
        QVERIFY(bench.action("actionCalibrate")->isEnabled());
        QVERIFY(bench.action("actionStartRecording")->isEnabled());
        QCOMPARE(bench.view->tabs()->isTabEnabled(2), events.contains(QLatin1Char('C')));
        QCOMPARE(bench.view->tabs()->isTabEnabled(3), events.contains(QLatin1Char('C')));
    }

    void settingsSurvive()
    {
        {
            Bench bench;
            bench.view->resize(700, 500);
            bench.view->move(60, 50);
            bench.prompts->openNames = {"/daten/projekte/deckel.vnt"_s};
            QCOMPARE(bench.view->askOpenFile("t"_s, "f"_s), "/daten/projekte/deckel.vnt"_s);
            bench.view->writeSettings();
        }
        QCOMPARE(settings().value("mainwindow_pos"_s).toPoint(), QPoint(60, 50));
        QCOMPARE(settings().value("mainwindow_size"_s).toSize(), QSize(700, 500));
        QCOMPARE(settings().value("lastDir"_s).toString(), "/daten/projekte"_s);
        const Bench again;
        QCOMPARE(again.view->pos(), QPoint(60, 50));
        QCOMPARE(again.view->size(), QSize(700, 500));
    }

    void windowOnAMissingScreenComesBack()
    {
        settings().setValue("mainwindow_pos"_s, QPoint(9000, 100));
        settings().setValue("mainwindow_size"_s, QSize(-5, 0));
        const Bench bench;
        QCOMPARE(bench.view->pos(), QPoint(200, 170)); // on 600 pixels of height, with a title bar
        QCOMPARE(bench.view->size(), QSize(400, 400));
        bench.view->show();
        QVERIFY(QTest::qWaitForWindowExposed(bench.view.get()));
        for (int i = 0; i < bench.view->tabs()->count(); ++i) {
            bench.view->tabs()->setCurrentIndex(i);
            QCoreApplication::processEvents();
        }
        QCOMPARE(bench.view->size(), QSize(400, 400)); // no page forces it larger
    }

    void questions_data()
    {
        columns<Question, QString, int, int, int>("question", "text", "buttons", "answer", "result");
        constexpr int kSave = QMessageBox::Save | QMessageBox::Discard;
        constexpr int kThree = kSave | QMessageBox::Cancel;
        constexpr int kOk = QMessageBox::Ok | QMessageBox::Cancel;
        const auto ask = [](const QString &text, int buttons, const Question &question,
                            std::initializer_list<std::pair<int, int>> answers) {
            for (const auto &[answer, result] : answers)
                row(qPrintable("%1 %2"_s.arg(text).arg(answer)), question, text, buttons, answer, result);
        };
        ask("Projekt speichern?"_s, kSave, std::mem_fn(&View::askToSave),
            {{QMessageBox::Save, 1}, {QMessageBox::Discard, 0}});
        ask("Ventaro beenden?"_s, kOk, std::mem_fn(&View::askToQuit), {{QMessageBox::Ok, 1}, {QMessageBox::Cancel, 0}});
        ask("Achtung: Alle Messdaten werden gelöscht!"_s, kOk, std::mem_fn(&View::askToClearData),
            {{QMessageBox::Ok, 1}, {QMessageBox::Cancel, 0}});
        ask("Vor dem Beenden Ventaro Projekt speichern?"_s, kThree, std::mem_fn(&View::askToSaveAndQuit),
            {{QMessageBox::Save, QMessageBox::Save}, {QMessageBox::Cancel, QMessageBox::Cancel}});
        ask("Ja?"_s, QMessageBox::Yes | QMessageBox::No, [](View &view) { return view.askYesNo("Titel"_s, "Ja?"_s); },
            {{QMessageBox::Yes, 1}, {QMessageBox::No, 0}});
    }

    void questions()
    {
        QFETCH(Question, question);
        QFETCH(int, answer);
        Bench bench;
        bench.prompts->answers = {static_cast<QMessageBox::StandardButton>(answer)};
        QTEST(question(*bench.view), "result");
        QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
        QTEST(bench.prompts->questions.front().text, "text");
        QTEST(int(bench.prompts->questions.front().buttons), "buttons");
    }

    void oneQuestionAtATime()
    {
        Bench bench;
        bench.prompts->answers = {QMessageBox::Yes};
        bool nested = false;
        bench.prompts->whileOpen = [&] {
            if (std::exchange(nested, true))
                return;
            QVERIFY(bench.view->isAsking());
            bench.view->showWarning("w"_s, "später"_s);
            bench.view->showMessage("m"_s, "danach"_s);
            QVERIFY(bench.view->askToSave()); // nothing may be thrown away unasked
            QVERIFY(!bench.view->askToQuit());
            QVERIFY(!bench.view->askToClearData());
            QVERIFY(!bench.view->askYesNo(QString(), QString()));
            QCOMPARE(bench.view->askToSaveAndQuit(), QMessageBox::Cancel);
            QCOMPARE(bench.view->askSaveFile(QString(), QString()), QString());
            QVERIFY(!bench.view->askAddress(QString()));
        };
        QVERIFY(bench.view->askYesNo("Titel"_s, "Text"_s));
        QVERIFY(bench.prompts->messages.empty());
        QTRY_COMPARE(bench.prompts->messages.size(), std::size_t(2));
        QCOMPARE(bench.prompts->messages.front().title, "später"_s);
        QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
        QCOMPARE(bench.prompts->unexpected, 0);
        QVERIFY(!bench.view->isAsking());
    }

    void completedNameAsksBeforeOverwriting_data()
    {
        // asked: title of the question, empty: none
        columns<QString, bool, bool, QString, QString>("chosen", "exactCase", "overwrite", "asked", "result");
        row("with the suffix", "there.vnt", false, false, QString(), "there.vnt"); // the dialog has asked
        row("in capitals", "there.VNT", false, false, QString(), "there.VNT");
        row("a new file", "new", false, false, QString(), "new.vnt");
        row("overwritten", "there", false, true, "Speichern", "there.vnt");
        row("refused", "there", false, false, "Speichern", QString());
        row("capitals completed", "there.VNT", true, false, QString(), "there.VNT.vnt");
        row("cancelled", QString(), false, false, QString(), QString());
    }

    void completedNameAsksBeforeOverwriting()
    {
        QFETCH(QString, chosen);
        QFETCH(bool, exactCase);
        QFETCH(bool, overwrite);
        const QTemporaryDir folder;
        writeFile(folder.filePath("there.vnt"_s), "old");
        Bench bench;
        bench.prompts->saveNames = {chosen.isEmpty() ? QString() : folder.filePath(chosen)};
        bench.prompts->answers = {overwrite ? QMessageBox::Yes : QMessageBox::No};
        const QString file = bench.view->askSaveFileWithSuffix("Speichern"_s, "f"_s, ".vnt"_s,
                                                               exactCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
        QTEST(QFileInfo(file).fileName(), "result");
        QTEST(bench.prompts->questions.empty() ? QString() : bench.prompts->questions.front().title, "asked");
    }

    void progressIsCentredAndCancels()
    {
        const Bench bench;
        bench.view->resize(1000, 700);
        bench.view->show();
        bench.view->showProgress("Verbinden ..."_s);
        const auto *panel = bench.view->findChild<QWidget *>("connectionProgress"_s);
        QCOMPARE(panel->geometry(), QRect(250, 300, 500, 100));
        bench.view->resize(1200, 800);
        QCoreApplication::processEvents();
        QCOMPARE(panel->geometry(), QRect(300, 350, 600, 100));
        const QSignalSpy cancelled(bench.view.get(), &View::progressCancelled);
        const QSignalSpy connectDisconnect(bench.view.get(), &View::connectDisconnect);
        bench.action("actionConnect")->trigger();
        QCOMPARE(cancelled.count(), 1);
        QCOMPARE(connectDisconnect.count(), 0);
        QVERIFY(!bench.view->isProgressShown());
        bench.action("actionConnect")->trigger();
        QCOMPARE(connectDisconnect.count(), 1);
    }

    /// However small the window is, the box and the menu can be reached with the mouse.
    void toolBarFitsTheWindow()
    {
        const Bench bench;
        const auto *bar = bench.view->findChild<QToolBar *>("toolBar"_s);
        bench.view->show();
        for (const int width : {400, 899, 900, 1280, 400}) {
            bench.view->resize(width, 400);
            QCoreApplication::processEvents();
            for (const char *name : {"actionConnect", "actionCalibrate", "actionStartRecording", "actionMenu"}) {
                const auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(bench.action(name)));
                QVERIFY2(button->isVisible() && bar->rect().contains(button->geometry()), name);
                QVERIFY2(button->toolButtonStyle() == Qt::ToolButtonIconOnly
                             || button->width() >= button->sizeHint().width(),
                         name);
            }
        }
    }

    /// A window that is maximised while it appears may get its first size once more, after the final one.
    void toolBarIgnoresAnOutdatedSize()
    {
        const Bench bench;
        const auto *bar = bench.view->findChild<QToolBar *>("toolBar"_s);
        bench.view->show();
        bench.view->resize(1280, 800);
        QCoreApplication::processEvents();
        QResizeEvent late({400, 400}, {400, 400});
        QCoreApplication::sendEvent(bench.view.get(), &late);
        QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    }

    void modifiedMarkIsShown()
    {
        Bench bench;
        const auto *label = bench.view->findChild<QLabel *>("labelProjectFile"_s);
        QCOMPARE(label->text(), "Neues Projekt"_s);
        bench.model.setCurrentFile("/daten/deckel.vnt"_s);
        bench.model.setProjectModifiedFlag(true);
        QCOMPARE(label->text(), "deckel.vnt – geändert"_s);
        bench.model.setProjectModifiedFlag(false);
        QCOMPARE(label->text(), "deckel.vnt – gespeichert"_s);
    }

    void longFileNameIsShortenedInItsOwnFont()
    {
        Bench bench;
        const auto *label = bench.view->findChild<QLabel *>("labelProjectFile"_s);
        bench.model.setCurrentFile("/daten/"_s + QString(100, QLatin1Char('m')) + ".vnt"_s);
        for (const bool modified : {true, false, true}) {
            bench.model.setProjectModifiedFlag(modified);
            label->ensurePolished();
            const int width = label->fontMetrics().horizontalAdvance(label->text());
            QVERIFY2(width > 380 && width <= 420, qPrintable(QString::number(width)));
        }
    }

    void editInTheProjectTabIsNotLost()
    {
        Bench bench;
        TabProject *tab = bench.view->tabProject();
        connect(tab, &TabProject::projectDataChanged, tab, [&] { bench.model.setProjectData(tab->projectData()); });
        // Opening another project and typing right behind it must not bring the old record back.
        ProjectData other;
        other.name = "Neu"_s;
        other.customer = "Kunde"_s;
        bench.model.setProjectData(other);
        QTest::keyClicks(bench.view->findChild<QLineEdit *>("lineEditProjectNumber"_s), "17"_s);
        other.number = "17"_s;
        QCOMPARE(bench.model.projectData(), other);
    }

    void resetShowsTheEmptyProject()
    {
        Bench bench;
        bench.setConnected(true);
        bench.view->setRecordingRunning(true);
        bench.view->setTabEnabled(4, false);
        auto *box = bench.view->findChild<QCheckBox *>("loggerCheckBoxA0"_s);
        box->setChecked(true);
        bench.view->logSample(1.0, {1, 2, 3, 4, 5});
        bench.view->reset();
        QVERIFY(bench.view->tabs()->isTabEnabled(4));
        QCOMPARE(bench.action("actionStartRecording")->text(), "&Start"_s);
        QCOMPARE(bench.view->findChild<QPlainTextEdit *>("editLogger"_s)->toPlainText(), QString());
    }
};

QTEST_MAIN(TestView)
#include "tst_view.moc"
