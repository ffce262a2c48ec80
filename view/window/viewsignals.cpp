#include "view/window/viewsignals.h"

#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/tabwebconfig.h"
#include "view/home/tabhome.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/terminal/tabdatalogger.h"
#include "view/terminal/tabterminal.h"
#include "view/window/projectdrop.h"
#include "view/window/view.h"
#include "view/window/viewactions.h"

#include <QAbstractButton>
#include <QAction>
#include <QDoubleSpinBox>
#include <QTabWidget>

namespace {

void connectHome(View *view, const ViewActions &actions)
{
    TabHome *home = view->tabHome();
    home->setActions(actions.connectBox, actions.newProject, actions.openProject);
    QObject::connect(home, &TabHome::connectRequested, view, &View::connectToAddress);
    QObject::connect(home, &TabHome::openRequested, view, &View::openProjectFile);
    QObject::connect(home, &TabHome::demoClicked, view, &View::startStopDemo);
}

void connectOszi(View *view)
{
    const TabOszilloscope *oszi = view->tabOszi();
    if (const auto *clear = oszi->findChild<QAbstractButton *>(QStringLiteral("buttonClearMarkers")))
        QObject::connect(clear, &QAbstractButton::clicked, view, &View::clearMarkers);
    for (int i = 1; i <= kNumSensors; ++i) {
        if (const auto *offset = oszi->findChild<QDoubleSpinBox *>(QStringLiteral("offsetSpinBox%1").arg(i)))
            QObject::connect(offset, qOverload<double>(&QDoubleSpinBox::valueChanged), view, &View::offsetChanged);
    }
}

void connectLogger(View *view)
{
    TabDataLogger *logger = view->tabLogger();
    QObject::connect(logger, &TabDataLogger::clearRequested, view, &View::clearLogger);
    QObject::connect(logger, &TabDataLogger::headlineRequested, view, &View::loggerHeadline);
    QObject::connect(view, &View::loggerHeadline, logger, &TabDataLogger::writeHeadline);
    QObject::connect(view, &View::clearLogger, logger, [view, logger] {
        logger->clear();
        if (logger->isAnySensorChecked())
            emit view->loggerHeadline();
    });
}

void connectActions(View *view, const ViewActions &actions)
{
    const auto relay = [view](QAction *action, void (View::*signal)()) {
        QObject::connect(action, &QAction::triggered, view, signal);
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
    QObject::connect(new ProjectDrop(view), &ProjectDrop::dropped, view, &View::openProjectFile);
}

void connectPages(View *view, const ViewActions &actions)
{
    QObject::connect(view->tabs(), &QTabWidget::currentChanged, view, &View::onTabSelected);
    connectHome(view, actions);
    QObject::connect(view->tabProject(), &TabProject::commentChanged, view, &View::commentChanged);
    QObject::connect(view->tabProject(), &TabProject::imageButtonClicked, view, &View::imageButtonClicked);
    QObject::connect(view->tabProject(), &TabProject::imageLabelClicked, view, &View::imageLabelClicked);
    connectLogger(view);
    QObject::connect(view->tabTerminal(), &TabTerminal::sendRequested, view, &View::terminalSend);
    QObject::connect(view->tabTerminal(), &TabTerminal::cleared, view, &View::terminalClear);
    QObject::connect(view->tabWebConfig(), &TabWebConfig::openFailed, view,
                     [view] { view->showStatus(View::tr("Der Browser konnte nicht geöffnet werden.")); });
    QObject::connect(view, &View::openImportBlackBoxData, view->tabs(),
                     [view] { view->tabs()->setCurrentWidget(view->tabBlackBox()); });
    connectOszi(view);
}

void connectModel(View *view, const Model *model)
{
    QObject::connect(model, &Model::appStateChanged, view, &View::onModel_appStateChanged);
    QObject::connect(model, &Model::projectChanged, view, &View::onModel_ProjectChanged);
    QObject::connect(model, &Model::dataChanged, view, &View::onModel_DataChanged);
    QObject::connect(model, &Model::viewDataChanged, view, &View::onModel_ViewDataChanged);
}

} // namespace

void viewsignals::connectAll(View *view, const ViewActions &actions, const Model *model)
{
    connectActions(view, actions);
    connectPages(view, actions);
    connectModel(view, model);
}
