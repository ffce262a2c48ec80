#include "app/theme.h"
#include "model/model.h"
#include "tests/support/logcapture.h"
#include "tests/support/scriptedprompts.h"
#include "view/tabhome.h"
#include "view/tabproject.h"
#include "view/view.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace {

struct Bench
{
    Bench()
    {
        auto script = std::make_unique<ScriptedPrompts>();
        prompts = script.get();
        view = std::make_unique<View>(&model, std::move(script));
    }

    [[nodiscard]] QAction *action(const char *name) const { return view->findChild<QAction *>(QLatin1String(name)); }
    void setConnected(bool connected)
    {
        model.setConnected(connected);
        model.emitAppStateChanged();
    }

    Model model{QString()};
    ScriptedPrompts *prompts = nullptr; // owned by the view
    std::unique_ptr<View> view;
};

QSettings settings()
{
    return QSettings(QStringLiteral("Tarnwald"), QStringLiteral("Ventaro"));
}

} // namespace

class TestView : public QObject
{
    Q_OBJECT

private slots:
    void init() { settings().clear(); }

    void actionsEmitTheirSignal_data();
    void actionsEmitTheirSignal();
    void linkAndRecordingAreShown_data();
    void linkAndRecordingAreShown();
    void closingAsksToQuit();
    void settingsSurvive();
    void windowOnAMissingScreenComesBack();
    void questions_data();
    void questions();
    void oneQuestionAtATime();
    void progressIsCentredAndCancels();
    void toolBarFitsTheWindow();
    void modifiedMarkIsShown();
    void editInTheProjectTabIsNotLost();
    void resetShowsTheEmptyProject();
};

using ViewSignal = void (View::*)();
Q_DECLARE_METATYPE(ViewSignal)

void TestView::actionsEmitTheirSignal_data()
{
    QTest::addColumn<ViewSignal>("signal");
    QTest::newRow("actionConnect") << ViewSignal(&View::connectDisconnect);
    QTest::newRow("actionDisconnect") << ViewSignal(&View::connectDisconnect);
    QTest::newRow("actionAbout") << ViewSignal(&View::about);
    QTest::newRow("actionSaveTerminal") << ViewSignal(&View::saveTerminal);
    QTest::newRow("actionSaveCSV") << ViewSignal(&View::saveCSV);
    QTest::newRow("actionSaveOszi") << ViewSignal(&View::saveOszi);
    QTest::newRow("actionNewProject") << ViewSignal(&View::newProject);
    QTest::newRow("actionOpenProject") << ViewSignal(&View::openProject);
    QTest::newRow("actionSaveProject") << ViewSignal(&View::saveProject);
    QTest::newRow("actionSaveAs") << ViewSignal(&View::saveProjectAs);
    QTest::newRow("actionCalibrate") << ViewSignal(&View::calibrate);
    QTest::newRow("actionQuit") << ViewSignal(&View::quit);
    QTest::newRow("actionOpenBlackBox") << ViewSignal(&View::openImportBlackBoxData);
    QTest::newRow("actionFirmwareUpdate") << ViewSignal(&View::firmwareUpdate);
}

void TestView::actionsEmitTheirSignal()
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

void TestView::linkAndRecordingAreShown_data()
{
    // What happened, one letter each: C connected, D disconnected, r recording, s stopped.
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("connectText");
    QTest::addColumn<QString>("recordText");
    const QString title = QStringLiteral("Ventaro - 8.0 7");
    const QString off = title + QStringLiteral(" (disconnected)");
    const QString connectText = QStringLiteral("&Verbinden");
    const QString disconnectText = QStringLiteral("&Trennen");
    const QString start = QStringLiteral("&Start");
    const QString stop = QStringLiteral("&Stop");
    QTest::newRow("connected") << QStringLiteral("C") << title << disconnectText << start;
    QTest::newRow("disconnected") << QStringLiteral("D") << off << connectText << start;
    QTest::newRow("connected, lost") << QStringLiteral("CD") << off << connectText << start;
    QTest::newRow("recording") << QStringLiteral("Cr") << title << disconnectText << stop;
    QTest::newRow("recorded") << QStringLiteral("Crs") << title << disconnectText << start;
    QTest::newRow("lost while recording") << QStringLiteral("CrD") << off << connectText << start;
    QTest::newRow("recording without a link") << QStringLiteral("Dr") << off << connectText << stop;
}

void TestView::linkAndRecordingAreShown()
{
    QFETCH(QString, events);
    QFETCH(QString, title);
    Bench bench;
    bench.view->setTabEnabled(2, false);
    bench.view->setTabEnabled(3, false);
    for (const QChar event : events) {
        if (event == QLatin1Char('C') || event == QLatin1Char('D'))
            bench.setConnected(event == QLatin1Char('C'));
        else
            bench.view->setRecordingRunning(event == QLatin1Char('r'));
    }
    QCOMPARE(bench.view->windowTitle(), title);
    QTEST(bench.action("actionConnect")->text(), "connectText");
    QTEST(bench.action("actionStartRecording")->text(), "recordText");
    // Also without a connection: the last step of showing it enables both.
    QVERIFY(bench.action("actionCalibrate")->isEnabled());
    QVERIFY(bench.action("actionStartRecording")->isEnabled());
    QCOMPARE(bench.view->tabs()->isTabEnabled(2), events.contains(QLatin1Char('C')));
    QCOMPARE(bench.view->tabs()->isTabEnabled(3), events.contains(QLatin1Char('C')));
}

void TestView::closingAsksToQuit()
{
    const Bench bench;
    bench.view->show();
    const QSignalSpy spy(bench.view.get(), &View::quit);
    QVERIFY(!bench.view->close());
    QCOMPARE(spy.count(), 1);
    QVERIFY(bench.view->isVisible());
}

void TestView::settingsSurvive()
{
    {
        Bench bench;
        bench.view->resize(700, 500);
        bench.view->move(120, 90);
        bench.prompts->openNames = {QStringLiteral("/daten/projekte/deckel.vnt")};
        QCOMPARE(bench.view->askOpenFile(QStringLiteral("t"), QStringLiteral("f")),
                 QStringLiteral("/daten/projekte/deckel.vnt"));
        bench.view->writeSettings();
    }
    QCOMPARE(settings().value(QStringLiteral("mainwindow_pos")).toPoint(), QPoint(120, 90));
    QCOMPARE(settings().value(QStringLiteral("mainwindow_size")).toSize(), QSize(700, 500));
    QCOMPARE(settings().value(QStringLiteral("lastDir")).toString(), QStringLiteral("/daten/projekte"));
    const Bench again;
    QCOMPARE(again.view->pos(), QPoint(120, 90));
    QCOMPARE(again.view->size(), QSize(700, 500));
}

void TestView::windowOnAMissingScreenComesBack()
{
    settings().setValue(QStringLiteral("mainwindow_pos"), QPoint(9000, 100));
    settings().setValue(QStringLiteral("mainwindow_size"), QSize(-5, 0));
    const Bench bench;
    QCOMPARE(bench.view->pos(), QPoint(200, 200));
    QCOMPARE(bench.view->size(), QSize(400, 400));
    bench.view->show();
    QVERIFY(QTest::qWaitForWindowExposed(bench.view.get()));
    for (int i = 0; i < bench.view->tabs()->count(); ++i) {
        bench.view->tabs()->setCurrentIndex(i);
        QCoreApplication::processEvents();
    }
    QCOMPARE(bench.view->size(), QSize(400, 400)); // no page forces it larger
}

void TestView::questions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("result");
    const QString save = QStringLiteral("Projekt speichern?");
    const QString quit = QStringLiteral("Ventaro beenden?");
    const QString saveAndQuit = QStringLiteral("Vor dem Beenden Ventaro Projekt speichern?");
    const QString clear = QStringLiteral("Achtung: Alle Messdaten werden gelöscht!");
    constexpr int kSave = QMessageBox::Save | QMessageBox::Discard;
    constexpr int kOk = QMessageBox::Ok | QMessageBox::Cancel;
    constexpr int kThree = kSave | QMessageBox::Cancel;
    QTest::newRow("save: yes") << save << kSave << int(QMessageBox::Save) << 1;
    QTest::newRow("save: no") << save << kSave << int(QMessageBox::Discard) << 0;
    QTest::newRow("quit: yes") << quit << kOk << int(QMessageBox::Ok) << 1;
    QTest::newRow("quit: no") << quit << kOk << int(QMessageBox::Cancel) << 0;
    QTest::newRow("save and quit: save") << saveAndQuit << kThree << int(QMessageBox::Save) << int(QMessageBox::Save);
    QTest::newRow("save and quit: discard")
        << saveAndQuit << kThree << int(QMessageBox::Discard) << int(QMessageBox::Discard);
    QTest::newRow("save and quit: cancel")
        << saveAndQuit << kThree << int(QMessageBox::Cancel) << int(QMessageBox::Cancel);
    QTest::newRow("clear: yes") << clear << kOk << int(QMessageBox::Ok) << 1;
    QTest::newRow("clear: no") << clear << kOk << int(QMessageBox::Cancel) << 0;
    QTest::newRow("yes or no: yes") << QString() << int(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::Yes)
                                    << 1;
    QTest::newRow("yes or no: no") << QString() << int(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::No) << 0;
}

void TestView::questions()
{
    QFETCH(QString, text);
    QFETCH(int, buttons);
    QFETCH(int, answer);
    QFETCH(int, result);
    Bench bench;
    bench.prompts->answers = {static_cast<QMessageBox::StandardButton>(answer)};
    const QString question = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(':'), 0, 0);
    if (question == QLatin1String("save"))
        QCOMPARE(int(bench.view->askToSave()), result);
    else if (question == QLatin1String("quit"))
        QCOMPARE(int(bench.view->askToQuit()), result);
    else if (question == QLatin1String("save and quit"))
        QCOMPARE(int(bench.view->askToSaveAndQuit()), result);
    else if (question == QLatin1String("clear"))
        QCOMPARE(int(bench.view->askToClearData()), result);
    else
        QCOMPARE(int(bench.view->askYesNo(QStringLiteral("Titel"), text)), result);
    QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
    QCOMPARE(bench.prompts->questions.front().text, text);
    QCOMPARE(int(bench.prompts->questions.front().buttons), buttons);
}

void TestView::oneQuestionAtATime()
{
    Bench bench;
    bench.prompts->answers = {QMessageBox::Yes};
    bool nested = false;
    bench.prompts->whileOpen = [&] {
        if (std::exchange(nested, true))
            return;
        QVERIFY(bench.view->isAsking());
        bench.view->showWarning(QStringLiteral("w"), QStringLiteral("später"));
        bench.view->showMessage(QStringLiteral("m"), QStringLiteral("danach"));
        QVERIFY(bench.view->askToSave()); // nothing may be thrown away unasked
        QVERIFY(!bench.view->askToQuit());
        QVERIFY(!bench.view->askToClearData());
        QVERIFY(!bench.view->askYesNo(QString(), QString()));
        QCOMPARE(bench.view->askToSaveAndQuit(), QMessageBox::Cancel);
        QCOMPARE(bench.view->askSaveFile(QString(), QString()), QString());
        QVERIFY(!bench.view->askAddress(QString()));
    };
    QVERIFY(bench.view->askYesNo(QStringLiteral("Titel"), QStringLiteral("Text")));
    QVERIFY(bench.prompts->messages.empty());
    QTRY_COMPARE(bench.prompts->messages.size(), std::size_t(2));
    QCOMPARE(bench.prompts->messages.front().title, QStringLiteral("später"));
    QCOMPARE(bench.prompts->mostOpenAtOnce, 1);
    QCOMPARE(bench.prompts->unexpected, 0);
    QVERIFY(!bench.view->isAsking());
}

void TestView::progressIsCentredAndCancels()
{
    const Bench bench;
    bench.view->resize(1000, 700);
    bench.view->show();
    bench.view->showProgress(QStringLiteral("Verbinden ..."));
    const auto *panel = bench.view->findChild<QWidget *>(QStringLiteral("connectionProgress"));
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
void TestView::toolBarFitsTheWindow()
{
    const Bench bench;
    const auto *bar = bench.view->findChild<QToolBar *>(QStringLiteral("toolBar"));
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

void TestView::modifiedMarkIsShown()
{
    Bench bench;
    const auto *label = bench.view->findChild<QLabel *>(QStringLiteral("labelProjectFile"));
    QCOMPARE(label->text(), QStringLiteral("Neues Projekt"));
    bench.model.setCurrentFile(QStringLiteral("/daten/deckel.vnt"));
    bench.model.setProjectModifiedFlag(true); // the model tells nobody
    QTRY_COMPARE(label->text(), QStringLiteral("deckel.vnt – nicht gespeichert"));
    bench.model.setProjectModifiedFlag(false);
    QTRY_COMPARE(label->text(), QStringLiteral("deckel.vnt"));
}

void TestView::editInTheProjectTabIsNotLost()
{
    Bench bench;
    TabProject *tab = bench.view->tabProject();
    connect(tab, &TabProject::projectDataChanged, tab, [&] { bench.model.setProjectData(tab->projectData()); });
    // Opening another project and typing right behind it must not bring the old record back.
    ProjectData other;
    other.name = QStringLiteral("Neu");
    other.customer = QStringLiteral("Kunde");
    bench.model.setProjectData(other);
    QTest::keyClicks(bench.view->findChild<QLineEdit *>(QStringLiteral("lineEditProjectNumber")), QStringLiteral("17"));
    other.number = QStringLiteral("17");
    QCOMPARE(bench.model.projectData(), other);
}

void TestView::resetShowsTheEmptyProject()
{
    Bench bench;
    bench.setConnected(true);
    bench.view->setRecordingRunning(true);
    bench.view->setTabEnabled(4, false);
    auto *box = bench.view->findChild<QCheckBox *>(QStringLiteral("loggerCheckBoxA0"));
    box->setChecked(true);
    bench.view->logSample(1.0, {1, 2, 3, 4, 5});
    bench.view->reset();
    QVERIFY(bench.view->tabs()->isTabEnabled(4));
    QCOMPARE(bench.action("actionStartRecording")->text(), QStringLiteral("&Start"));
    QCOMPARE(bench.view->findChild<QPlainTextEdit *>(QStringLiteral("editLogger"))->toPlainText(), QString());
}

QTEST_MAIN(TestView)
#include "tst_view.moc"
