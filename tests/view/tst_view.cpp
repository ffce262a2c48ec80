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
#include <QMenu>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>

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

/// Colour of the first pixel of an icon that is not transparent.
QColor iconColor(const QIcon &icon)
{
    const QImage image = icon.pixmap(36, 36).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() == 255)
                return image.pixelColor(x, y);
        }
    }
    return {};
}

/// Translates every text into itself in capitals.
class ShoutingTranslator : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(text).toUpper();
    }
};

} // namespace

class TestView : public QObject
{
    Q_OBJECT

private slots:
    void init() { settings().clear(); }

    void layoutHasItsNames();
    void actionsEmitTheirSignal_data();
    void actionsEmitTheirSignal();
    void linkAndRecordingAreShown_data();
    void linkAndRecordingAreShown();
    void actionStateSetsLookAndLog_data();
    void actionStateSetsLookAndLog();
    void closingAsksToQuit();
    void firstStartUsesDefaults();
    void settingsSurvive();
    void windowOnAMissingScreenComesBack();
    void questions_data();
    void questions();
    void oneQuestionAtATime();
    void fileDialogsRememberTheFolder();
    void progressIsCentredAndCancels();
    void toolBarFitsTheWindow();
    void statusMessageOutlivesTips();
    void modifiedMarkIsShown();
    void burstOfChangesIsBundled();
    void editInTheProjectTabIsNotLost();
    void languageChangeReachesEveryText();
    void resetShowsTheEmptyProject();
};

void TestView::layoutHasItsNames()
{
    const Bench bench;
    QCOMPARE(bench.view->windowTitle(), QStringLiteral("Ventaro"));
    QVERIFY(bench.view->findChild<QToolBar *>(QStringLiteral("toolBar")));
    QCOMPARE(bench.view->centralWidget()->objectName(), QStringLiteral("centralwidget"));
    QVERIFY(bench.view->centralWidget()->findChild<QTabWidget *>(QStringLiteral("tabWidget")));
    QStringList tabs;
    for (int i = 0; i < bench.view->tabs()->count(); ++i)
        tabs << bench.view->tabs()->widget(i)->objectName() + QLatin1Char('=') + bench.view->tabs()->tabText(i);
    QCOMPARE(tabs.join(QLatin1Char(',')),
             QStringLiteral("tabHome=Home,tabProject=Projekt,tabSensors=Sensoren,tabOszi=Oszilloskop,"
                            "tabEvaluation=Auswertung,tabWebConfig=Web Configuration,tabLogger=Datenlogger,"
                            "tabTerminal=Terminal,tabBlackBox=BlackBox"));
    for (const auto *button :
         bench.view->findChild<QToolBar *>(QStringLiteral("toolBar"))->findChildren<QToolButton *>())
        QVERIFY(!button->text().isEmpty() || !button->accessibleName().isEmpty()
                || button->objectName() == QLatin1String("qt_toolbar_ext_button"));
}

using ViewSignal = void (View::*)();
Q_DECLARE_METATYPE(ViewSignal)

void TestView::actionsEmitTheirSignal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<ViewSignal>("signal");
    const auto row = [](const char *name, const char *text, const char *toolTip, ViewSignal signal) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(toolTip) << signal;
    };
    row("actionConnect", "Verbinden", "Mit Mesotra verbinden.", &View::connectDisconnect);
    row("actionDisconnect", "Trennen", "Mesotra Verbindung trennen.", &View::connectDisconnect);
    row("actionAbout", "Über Ventaro...", "Über Ventaro", &View::about);
    row("actionSaveTerminal", "Terminal speichern...", "Terminal speichern", &View::saveTerminal);
    row("actionSaveCSV", "CSV speichern...", "Save data as CSV file", &View::saveCSV);
    row("actionSaveOszi", "Oszilloskop speichern...", "Save oscilloscope as a graphics file", &View::saveOszi);
    row("actionNewProject", "&Neues Projekt", "Neues Projekt anlegen", &View::newProject);
    row("actionOpenProject", "Projekt &öffnen...", "Projekt öffnen", &View::openProject);
    row("actionSaveProject", "Projekt &speichern", "Projekt speichern", &View::saveProject);
    row("actionSaveAs", "Projekt speichern &unter...", "Projekt speichern unter", &View::saveProjectAs);
    row("actionCalibrate", "Kalibrieren", "Kalibrieren", &View::calibrate);
    row("actionQuit", "Ventaro beenden", "Ventaro beenden", &View::quit);
    row("actionOpenBlackBox", "BlackBox Daten Öffnen", "BlackBox Daten Öffnen", &View::openImportBlackBoxData);
    row("actionFirmwareUpdate", "Firmware Update…", "Firmware Update…", &View::firmwareUpdate);
    row("actionMenu", "Menu", "Menu", nullptr);
    row("actionLanguageGerman", "German", "German", nullptr);
    row("actionLanguageEnglish", "English", "English", nullptr);
}

void TestView::actionsEmitTheirSignal()
{
    QFETCH(QString, text);
    QFETCH(QString, toolTip);
    QFETCH(ViewSignal, signal);
    Bench bench;
    QAction *action = bench.action(QTest::currentDataTag());
    QVERIFY(action);
    QCOMPARE(action->text(), text);
    QCOMPARE(action->toolTip(), toolTip);
    QVERIFY(!action->statusTip().isEmpty());
    if (!signal)
        return;
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

void TestView::actionStateSetsLookAndLog_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");
    QTest::newRow("connect") << 0 << QStringLiteral("actionConnect");
    QTest::newRow("disconnect") << 1 << QStringLiteral("actionConnect");
    QTest::newRow("calibrate") << 2 << QStringLiteral("actionCalibrate");
    QTest::newRow("recording") << 3 << QStringLiteral("actionStartRecording");
    QTest::newRow("none") << 4 << QString();
}

void TestView::actionStateSetsLookAndLog()
{
    QFETCH(int, number);
    QFETCH(QString, name);
    const Bench bench;
    QVector<QRgb> colors;
    for (int state = 0; state < 4; ++state) {
        const LogCapture log;
        bench.view->setActionState(static_cast<Actions>(number), static_cast<ActionState>(state));
        QVERIFY(log.contains(QStringLiteral("action=%1 state=%2").arg(number).arg(state)));
        if (name.isEmpty())
            continue;
        const QAction *action = bench.view->findChild<QAction *>(name);
        QCOMPARE(action->isEnabled(), state != 0);
        const QRgb color = iconColor(action->icon()).rgb();
        QVERIFY2(!colors.contains(color), "two states look the same");
        colors.append(color);
    }
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

void TestView::firstStartUsesDefaults()
{
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

void TestView::fileDialogsRememberTheFolder()
{
    class FolderPrompts : public ScriptedPrompts
    {
    public:
        QStringList folders;
        QString saveFileName(const QString &title, const QString &folder, const QString &filter) override
        {
            folders << folder;
            return ScriptedPrompts::saveFileName(title, folder, filter);
        }
    };
    Model model{QString()};
    auto script = std::make_unique<FolderPrompts>();
    FolderPrompts *prompts = script.get();
    View view(&model, std::move(script));
    prompts->saveNames = {QStringLiteral("/a/b/x.vnt"), QString(), QStringLiteral("/c/y.vnt")};
    for (int i = 0; i < 3; ++i)
        (void)view.askSaveFile(QStringLiteral("t"), QStringLiteral("f")); // the folders are what counts here
    QCOMPARE(prompts->folders, QStringList({QString(), QStringLiteral("/a/b"), QStringLiteral("/a/b")}));
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

void TestView::statusMessageOutlivesTips()
{
    const Bench bench;
    QStatusTipEvent tip(QStringLiteral("Tipp"));
    bench.view->showStatus(QStringLiteral("wichtig"), 50);
    QCoreApplication::sendEvent(bench.view.get(), &tip);
    QCOMPARE(bench.view->statusBar()->currentMessage(), QStringLiteral("wichtig"));
    QTRY_VERIFY(bench.view->statusBar()->currentMessage().isEmpty());
    QCoreApplication::sendEvent(bench.view.get(), &tip);
    QCOMPARE(bench.view->statusBar()->currentMessage(), QStringLiteral("Tipp"));
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

void TestView::burstOfChangesIsBundled()
{
    Bench bench;
    bench.view->show();
    bench.view->tabs()->setCurrentIndex(2);
    const int series = bench.model.appendMeasurement(0);
    const auto *value = bench.view->findChild<QWidget *>(QStringLiteral("sensorPanel1"))
                            ->findChild<QLabel *>(QStringLiteral("sensorValue"));
    for (int i = 1; i <= 1000; ++i) {
        bench.model.appendSample(0, series, i);
        bench.model.emitDataChanged();
        QVERIFY(value->text() != QString::number(i));
    }
    QTRY_COMPARE(value->text(), QLocale().toString(1000.0, 'g', 6));
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

void TestView::languageChangeReachesEveryText()
{
    Bench bench;
    bench.setConnected(true);
    bench.view->setRecordingRunning(true);
    ShoutingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    QCOMPARE(bench.view->tabs()->tabText(1), QStringLiteral("PROJEKT"));
    QCOMPARE(bench.action("actionConnect")->text(), QStringLiteral("&TRENNEN"));
    QCOMPARE(bench.action("actionStartRecording")->text(), QStringLiteral("&STOP"));
    QCOMPARE(bench.view->windowTitle(), QStringLiteral("Ventaro - 8.0 7"));
    for (const auto *action : bench.view->findChildren<QAction *>(QRegularExpression(QStringLiteral("^action"))))
        QCOMPARE(action->text(), action->text().toUpper());
    for (int i : {0, 1, 2, 4, 5, 6, 7, 8}) {
        for (const auto *label : bench.view->tabs()->widget(i)->findChildren<QLabel *>())
            QCOMPARE(label->text(), label->text().toUpper());
        for (const auto *button : bench.view->tabs()->widget(i)->findChildren<QAbstractButton *>())
            QCOMPARE(button->text(), button->text().toUpper());
    }
    QCoreApplication::removeTranslator(&translator);
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
