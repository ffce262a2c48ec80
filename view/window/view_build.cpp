#include "app/theme.h"
#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/connectionprogress.h"
#include "view/box/tabwebconfig.h"
#include "view/common/logging.h"
#include "view/evaluation/tabevaluation.h"
#include "view/home/tabhome.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"
#include "view/terminal/tabdatalogger.h"
#include "view/terminal/tabterminal.h"
#include "view/window/dialogprompts.h"
#include "view/window/projectdrop.h"
#include "view/window/sidetabs.h"
#include "view/window/viewprivate.h"

#include <QAbstractButton>
#include <QAction>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr int kDataInterval = 50;  // ms between two updates of what shows the latest samples
constexpr int kFileInterval = 250; // ms

constexpr QSize kSmallestTabs(320, 200);

const QString kPosition = QStringLiteral("mainwindow_pos");
const QString kSize = QStringLiteral("mainwindow_size");
const QString kMaximized = QStringLiteral("mainwindow_maximized");

QSettings settings()
{
    return QSettings(theme::organisationName, theme::applicationName);
}

/// Ctrl+1 for the first.
QKeySequence tabKey(int tab)
{
    return Qt::CTRL + Qt::Key_1 + tab;
}

QVector<QRect> screensForWindows()
{
    QVector<QRect> areas;
    const QList<QScreen *> screens = QGuiApplication::screens(); // the primary first
    for (const QScreen *screen : screens)
        areas.append(screen->availableGeometry());
    return areas;
}

} // namespace

View::Private::Private(View *view, Model *data, std::unique_ptr<UserPrompts> questions)
    : q(view)
    , model(data)
    , prompts(questions ? std::move(questions) : std::make_unique<DialogPrompts>(view))
    , actions(view)
{}

void View::Private::createWindow()
{
    // A check box asks for too little room while its indicator has a minimum size only.
    // The sheet for menus gives entries that are disabled the colour of the others.
    q->setStyleSheet(QStringLiteral("QCheckBox::indicator {width: 22px; height: 22px;}"
                                    "QMenu::item:disabled {color: %1;}")
                         .arg(theme::colorMedium));
    createToolBar();
    createTabs();
    createStatusBar();
    createTimers();
    progress = new ConnectionProgress(q);
    QObject::connect(new ProjectDrop(q), &ProjectDrop::dropped, q, &View::openProjectFile);
}

void View::Private::createToolBar()
{
    toolBar = q->addToolBar(QString());
    toolBar->setObjectName(QStringLiteral("toolBar"));
    toolBar->setMovable(false);
    toolBar->setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the bar for good
    toolBar->setIconSize(QSize(36, 36));
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    actions.fillToolBar(toolBar);
    menu = new QMenu(q);
    menu->setObjectName(QStringLiteral("menu"));
    // A bar for one menu would take a row of a small screen; all menus open from the tool bar.
    actions.fillMenu(menu, languages.createLanguageMenu(q));
    q->menuBar()->hide();
}

void View::Private::createTabs()
{
    auto *central = new QWidget(q);
    central->setObjectName(QStringLiteral("centralwidget"));
    tabs = new SideTabWidget(central);
    tabs->setObjectName(QStringLiteral("tabWidget"));
    tabs->setMinimumSize(kSmallestTabs); // the window may be made smaller than the largest page needs
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabs);
    q->setCentralWidget(central);
    const auto add = [this](QWidget *page, const char *name) {
        page->setObjectName(QLatin1String(name));
        tabs->addTab(page, QString());
        // The tab key would stop where nothing can be done; what gets the focus scrolls into sight by itself.
        const auto areas = page->findChildren<QScrollArea *>();
        for (QScrollArea *area : areas)
            area->setFocusPolicy(Qt::NoFocus);
    };
    add(tabHome = new TabHome, "tabHome");
    add(tabProject = new TabProject, "tabProject");
    add(tabSensors = new TabSensors, "tabSensors");
    add(tabOszi = new TabOszilloscope, "tabOszi");
    add(tabEvaluation = new TabEvaluation, "tabEvaluation");
    add(tabWebConfig = new TabWebConfig, "tabWebConfig");
    add(tabLogger = new TabDataLogger, "tabLogger");
    add(tabTerminal = new TabTerminal, "tabTerminal");
    add(tabBlackBox = new TabBlackBox, "tabBlackBox");
    createTabKeys();
}

void View::Private::createTabKeys()
{
    for (int i = 0; i < tabs->count(); ++i) {
        const auto *key = new QShortcut(tabKey(i), q);
        QObject::connect(key, &QShortcut::activated, q, [this, i] {
            if (tabs->isTabEnabled(i))
                tabs->setCurrentIndex(i);
        });
    }
}

void View::Private::createStatusBar()
{
    createDemoLabel();
    fileLabel = new QLabel(q);
    fileLabel->setObjectName(QStringLiteral("labelProjectFile"));
    fileLabel->setTextFormat(Qt::PlainText);
    fileLabel->setContentsMargins(0, 0, 8, 0); // a maximised window has no grip beside it
    q->statusBar()->addPermanentWidget(fileLabel);
}

void View::Private::createTimers()
{
    for (QTimer *timer : {&dataTimer, &projectTimer, &statusTimer})
        timer->setSingleShot(true);
    dataTimer.setInterval(kDataInterval);
    projectTimer.setInterval(0);
    QObject::connect(&dataTimer, &QTimer::timeout, q, [this] { refreshData(); });
    QObject::connect(&projectTimer, &QTimer::timeout, q, [this] { refreshProject(); });
    QObject::connect(&fileTimer, &QTimer::timeout, q, [this] { refreshFileLabel(); });
    fileTimer.start(kFileInterval);
}

void View::Private::connectActions()
{
    const auto relay = [this](QAction *action, void (View::*signal)()) {
        QObject::connect(action, &QAction::triggered, q, signal);
    };
    relay(actions.newProject, &View::newProject);
    relay(actions.openProject, &View::openProject);
    relay(actions.saveProject, &View::saveProject);
    relay(actions.saveAs, &View::saveProjectAs);
    relay(actions.openBlackBox, &View::openImportBlackBoxData);
    relay(actions.openBlackBox, &View::importBlackBox);
    relay(actions.saveCsv, &View::saveCSV);
    relay(actions.saveOszi, &View::saveOszi);
    relay(actions.saveTerminal, &View::saveTerminal);
    relay(actions.disconnectBox, &View::connectDisconnect);
    relay(actions.calibrate, &View::calibrate);
    relay(actions.startRecording, &View::startStopRecording);
    relay(actions.firmwareUpdate, &View::firmwareUpdate);
    relay(actions.menu, &View::menu);
    relay(actions.about, &View::about);
    relay(actions.quit, &View::quit);
    QObject::connect(progress, &ConnectionProgress::cancelled, q, [this] {
        q->hideProgress();
        emit q->progressCancelled();
    });
    QObject::connect(actions.connectBox, &QAction::triggered, q, [this] {
        if (q->isProgressShown())
            emit progress->cancelled();
        else
            emit q->connectDisconnect();
    });
}

void View::Private::connectExports()
{
    QObject::connect(q, &View::saveTerminal, q, [this] { exportTerminal(); });
    QObject::connect(q, &View::saveOszi, q, [this] { exportOszi(); });
    QObject::connect(q, &View::saveCSV, q, [this] { exportCsv(); });
    QObject::connect(q, &View::loggerHeadline, q, [this] { tabLogger->writeHeadline(); });
    QObject::connect(q, &View::clearLogger, q, [this] {
        tabLogger->clear();
        if (tabLogger->isAnySensorChecked())
            emit q->loggerHeadline();
    });
    QObject::connect(q, &View::openImportBlackBoxData, q, [this] { tabs->setCurrentWidget(tabBlackBox); });
}

void View::Private::connectLanguages()
{
    QObject::connect(&languages, &MultiLanguageUtils::languageChosen, q, [this](const QString &code) {
        settings().setValue(QStringLiteral("language"), code);
        emit q->languageSelected(code);
    });
}

void View::Private::connectTabs()
{
    QObject::connect(tabs, &QTabWidget::currentChanged, q, &View::onTabSelected);
    connectHome();
    QObject::connect(tabProject, &TabProject::commentChanged, q, &View::commentChanged);
    QObject::connect(tabProject, &TabProject::imageButtonClicked, q, &View::imageButtonClicked);
    QObject::connect(tabProject, &TabProject::imageLabelClicked, q, &View::imageLabelClicked);
    QObject::connect(tabLogger, &TabDataLogger::clearRequested, q, &View::clearLogger);
    QObject::connect(tabLogger, &TabDataLogger::headlineRequested, q, &View::loggerHeadline);
    QObject::connect(tabTerminal, &TabTerminal::sendRequested, q, &View::terminalSend);
    QObject::connect(tabTerminal, &TabTerminal::cleared, q, &View::terminalClear);
    QObject::connect(tabWebConfig, &TabWebConfig::openFailed, q,
                     [this] { q->showStatus(View::tr("Der Browser konnte nicht geöffnet werden.")); });
    relayOsziControls();
}

void View::Private::relayOsziControls()
{
    if (const auto *clear = tabOszi->findChild<QAbstractButton *>(QStringLiteral("buttonClearMarkers")))
        QObject::connect(clear, &QAbstractButton::clicked, q, &View::clearMarkers);
    for (int i = 1; i <= kNumSensors; ++i) {
        if (const auto *offset = tabOszi->findChild<QDoubleSpinBox *>(QStringLiteral("offsetSpinBox%1").arg(i)))
            QObject::connect(offset, qOverload<double>(&QDoubleSpinBox::valueChanged), q, &View::offsetChanged);
    }
}

void View::Private::connectModel()
{
    tabHome->setModel(model);
    tabProject->setModel(model);
    tabSensors->setModel(model);
    tabOszi->setModel(model);
    tabEvaluation->setModel(model);
    QObject::connect(model, &Model::appStateChanged, q, &View::onModel_appStateChanged);
    QObject::connect(model, &Model::projectChanged, q, &View::onModel_ProjectChanged);
    QObject::connect(model, &Model::dataChanged, q, &View::onModel_DataChanged);
    QObject::connect(model, &Model::viewDataChanged, q, &View::onModel_ViewDataChanged);
}

void View::Private::readSettings()
{
    const QSettings stored = settings();
    if (stored.contains(kPosition) || stored.contains(kSize)) {
        placement.position = stored.value(kPosition, placement.position).toPoint();
        placement.size = stored.value(kSize, placement.size).toSize();
        placement = placedOnScreens(placement, screensForWindows());
    }
    q->resize(placement.size);
    q->move(placement.position);
    if (stored.value(kMaximized).toBool())
        q->setWindowState(Qt::WindowMaximized);
    lastDir = stored.value(QStringLiteral("lastDir")).toString();
    readRecent();
    const QString language = stored.value(QStringLiteral("language")).toString();
    languages.loadLanguage(languages.isOffered(language) ? language : languages.language());
}

/// The place to come back to, noted when the window begins to fill the screen; afterwards its frame cannot be told.
void View::Private::noteNormalPlacement(Qt::WindowStates before)
{
    constexpr Qt::WindowStates kFilling = Qt::WindowMaximized | Qt::WindowFullScreen;
    if (!q->isVisible() || before & kFilling || !(q->windowState() & kFilling))
        return;
    const QPoint frame = q->geometry().topLeft() - q->pos();
    placement = {q->normalGeometry().topLeft() - frame, q->normalGeometry().size()};
}

void View::writeSettings()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    QSettings stored = settings();
    const bool filling = isMaximized() || isFullScreen();
    stored.setValue(kPosition, filling ? d->placement.position : pos());
    stored.setValue(kSize, filling ? d->placement.size : size());
    stored.setValue(kMaximized, isMaximized());
    stored.setValue(QStringLiteral("lastDir"), d->lastDir);
}

void View::Private::retranslate()
{
    const QString titles[] = {tr("Home"),        tr("Projekt"),    tr("Sensoren"),
                              tr("Oszilloskop"), tr("Auswertung"), tr("Web Configuration"),
                              tr("Datenlogger"), tr("Terminal"),   tr("BlackBox")};
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setTabText(i, titles[i]);
        tabs->setTabToolTip(i, QStringLiteral("%1 (%2)").arg(titles[i], tabKey(i).toString(QKeySequence::NativeText)));
    }
    toolBar->setWindowTitle(tr("Werkzeugleiste"));
    toolBar->setAccessibleName(toolBar->windowTitle()); // Qt's own keeps the first title
    actions.retranslate();
    actions.nameToolButtons();
    languages.retranslateUi();
    model->retranslatePhaseNames();
    showRecordingTexts();
    if (link != Link::Unknown)
        showLink(link == Link::Connected);
    actions.holdWidths(toolBar);
    demoLabel->setText(tr("Demonstration"));
    refreshFileLabel();
}
