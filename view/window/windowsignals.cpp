#include "view/window/windowsignals.h"

#include "model/sensordescription.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/tabwebconfig.h"
#include "view/home/tabhome.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/terminal/tabdatalogger.h"
#include "view/terminal/tabterminal.h"
#include "view/window/mainwindow.h"
#include "view/window/pages.h"
#include "view/window/projectdrop.h"
#include "view/window/viewactions.h"

#include <QAbstractButton>
#include <QAction>
#include <QDoubleSpinBox>
#include <QTabWidget>

namespace {

void connectActions(MainWindow *window, const ViewActions &actions)
{
    const auto relay = [window](QAction *action, void (MainWindow::*signal)()) {
        QObject::connect(action, &QAction::triggered, window, signal);
    };
    relay(actions.newProject, &MainWindow::newProject);
    relay(actions.openProject, &MainWindow::openProject);
    relay(actions.saveProject, &MainWindow::saveProject);
    relay(actions.saveAs, &MainWindow::saveProjectAs);
    relay(actions.openBlackBox, &MainWindow::openImportBlackBoxData); // shows the page before the import asks
    relay(actions.openBlackBox, &MainWindow::importBlackBox);
    relay(actions.saveCsv, &MainWindow::saveCSV);
    relay(actions.saveOszi, &MainWindow::saveOszi);
    relay(actions.saveTerminal, &MainWindow::saveTerminal);
    relay(actions.disconnectBox, &MainWindow::connectDisconnect);
    relay(actions.calibrate, &MainWindow::calibrate);
    relay(actions.startRecording, &MainWindow::startStopRecording);
    relay(actions.firmwareUpdate, &MainWindow::firmwareUpdate);
    relay(actions.about, &MainWindow::about);
    relay(actions.quit, &MainWindow::quit);
    QObject::connect(new ProjectDrop(window), &ProjectDrop::dropped, window, &MainWindow::openProjectFile);
}

void connectHome(MainWindow *window, TabHome *home, const ViewActions &actions)
{
    home->setActions(actions.connectBox, actions.newProject, actions.openProject);
    QObject::connect(home, &TabHome::connectRequested, window, &MainWindow::connectToAddress);
    QObject::connect(home, &TabHome::openRequested, window, &MainWindow::openProjectFile);
    QObject::connect(home, &TabHome::demoClicked, window, &MainWindow::startStopDemo);
}

void connectProject(MainWindow *window, const TabProject *project)
{
    QObject::connect(project, &TabProject::commentChanged, window, &MainWindow::commentChanged);
    QObject::connect(project, &TabProject::imageButtonClicked, window, &MainWindow::imageButtonClicked);
    QObject::connect(project, &TabProject::imageLabelClicked, window, &MainWindow::imageLabelClicked);
}

void connectOszi(MainWindow *window, const TabOszilloscope *oszi)
{
    if (const auto *clear = oszi->findChild<QAbstractButton *>(QStringLiteral("buttonClearMarkers")))
        QObject::connect(clear, &QAbstractButton::clicked, window, &MainWindow::clearMarkers);
    for (int i = 1; i <= kNumSensors; ++i) {
        if (const auto *offset = oszi->findChild<QDoubleSpinBox *>(QStringLiteral("offsetSpinBox%1").arg(i)))
            QObject::connect(offset, qOverload<double>(&QDoubleSpinBox::valueChanged), window,
                             &MainWindow::offsetChanged);
    }
}

void connectLogger(MainWindow *window, TabDataLogger *logger)
{
    QObject::connect(logger, &TabDataLogger::clearRequested, window, &MainWindow::clearLogger);
    QObject::connect(logger, &TabDataLogger::headlineRequested, window, &MainWindow::loggerHeadline);
    QObject::connect(window, &MainWindow::loggerHeadline, logger, &TabDataLogger::writeHeadline);
    QObject::connect(window, &MainWindow::clearLogger, logger, [window, logger] {
        logger->clear();
        if (logger->isAnySensorChecked())
            emit window->loggerHeadline();
    });
}

void connectBoxPages(MainWindow *window, const Pages &pages)
{
    QObject::connect(pages.terminal, &TabTerminal::sendRequested, window, &MainWindow::terminalSend);
    QObject::connect(pages.terminal, &TabTerminal::cleared, window, &MainWindow::terminalClear);
    QObject::connect(pages.webConfig, &TabWebConfig::openFailed, window,
                     [window] { window->showStatus(MainWindow::tr("Der Browser konnte nicht geöffnet werden.")); });
    QObject::connect(window, &MainWindow::openImportBlackBoxData, pages.tabs,
                     [tabs = pages.tabs, page = pages.blackBox] { tabs->setCurrentWidget(page); });
}

} // namespace

void windowsignals::connectAll(MainWindow *window, const ViewActions &actions, const Pages &pages)
{
    connectActions(window, actions);
    connectHome(window, pages.home, actions);
    connectProject(window, pages.project);
    connectOszi(window, pages.oszi);
    connectLogger(window, pages.logger);
    connectBoxPages(window, pages);
}
