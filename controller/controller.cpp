#include "controller/controller.h"

#include "controller/controller_p.h"
#include "controller/logging.h"
#include "device/protocol/hostaddress.h"
#include "device/protocol/samplingperiod.h"
#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"
#include "view/window/view.h"

#include <QApplication>

namespace {

// How long the answer to a list request may take before the user may ask again.
constexpr int kListTimeout = 5000;
constexpr int kProgressCheck = 200;

void makeSingleShot(QTimer &timer, int milliseconds)
{
    timer.setSingleShot(true);
    timer.setInterval(milliseconds);
}

} // namespace

Controller::Controller(Model *model, View *view, const ControllerOptions &options)
    : d(std::make_unique<Private>(model, view, options))
{
    qCDebug(lcController) << Q_FUNC_INFO;
    makeSingleShot(d->deviceDescriptionTimer, options.deviceDescriptionTimeout);
    makeSingleShot(d->sensorDescriptionTimer, options.sensorDescriptionTimeout);
    makeSingleShot(d->listTimer, kListTimeout);
    makeSingleShot(d->progressTimer, kProgressCheck);
    makeSingleShot(d->resumeTimer, 0);
    makeSingleShot(d->deferredTimer, 0);

    d->progressBar = new QProgressBar;
    d->progressBar->hide();
    d->view->addStatusWidget(d->progressBar);
    d->model->setYield([this](int percent) { showFileProgress(percent); });

    connectUserActions();
    connectTabs();
    connectDevice();
    connectDemo();
    connectTransfers(options);
    d->view->setAddressValidator(isValidHostAddress);
    d->view->tabOszi()->setSamplingPeriods(samplingPeriodLabels());
    d->view->setDeviceAddress(d->address);
    if (!d->model->currentFile().isEmpty())
        d->view->rememberProject(d->model->currentFile());
}

Controller::~Controller()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->model->setYield({});
    // The socket's last signals must not find a controller that is half gone.
    d->connector.disconnect(this);
    d->demo.disconnect(this);
    delete d->progressBar;
}

void Controller::connectUserActions()
{
    QObject::connect(d->view, &View::newProject, this, &Controller::onNewProject);
    QObject::connect(d->view, &View::openProject, this, &Controller::onOpenProject);
    QObject::connect(d->view, &View::openProjectFile, this, &Controller::onOpenProjectFile);
    QObject::connect(d->view, &View::saveProject, this, &Controller::onSaveProject);
    QObject::connect(d->view, &View::saveProjectAs, this, &Controller::onSaveProjectAs);
    QObject::connect(d->view, &View::importBlackBox, this, &Controller::onImportBlackBox);
    QObject::connect(d->view, &View::firmwareUpdate, this, &Controller::onFirmwareUpdate);
    QObject::connect(d->view, &View::connectDisconnect, this, &Controller::onActionConnect);
    QObject::connect(d->view, &View::calibrate, this, &Controller::onActionCalibration);
    QObject::connect(d->view, &View::startStopRecording, this, &Controller::onActionStartStopRecording);
    QObject::connect(d->view, &View::quit, this, &Controller::onActionQuit);
}

void Controller::connectTabs()
{
    const TabProject *project = d->view->tabProject();
    QObject::connect(project, &TabProject::projectDataChanged, this, &Controller::onTabProject_projectDataChanged);
    QObject::connect(project, &TabProject::clearDataClicked, this, &Controller::onTabProject_clearDataClicked);
    QObject::connect(project, &TabProject::phaseEditChanged, this, &Controller::onTabProject_onPhaseEditChanged);
    QObject::connect(project, &TabProject::commentChanged, this, &Controller::onTabProject_commentChanged);

    QObject::connect(project, &TabProject::imageButtonClicked, this, &Controller::onTabProject_imageButtonClicked);
    QObject::connect(project, &TabProject::imageDeleteClicked, this, &Controller::onTabProject_imageDeleteClicked);
    QObject::connect(project, &TabProject::imageSaveClicked, this, &Controller::onTabProject_imageSaveClicked);
    QObject::connect(project, &TabProject::imageFilesGiven, this, &Controller::onTabProject_imageFilesGiven);
    QObject::connect(project, &TabProject::imageGiven, this, &Controller::onTabProject_imageGiven);

    const TabOszilloscope *oszi = d->view->tabOszi();
    QObject::connect(oszi, &TabOszilloscope::deleteMeasurements, this, &Controller::onTabOszi_deleteMeasurements);
    QObject::connect(oszi, &TabOszilloscope::markerChangedAbsolute, this, &Controller::onTabOszi_markerChangedAbsolute);
    QObject::connect(oszi, &TabOszilloscope::markerChangedRelative, this, &Controller::onTabOszi_markerChangedRelative);
    QObject::connect(oszi, &TabOszilloscope::checkBoxMarkerAbsClicked, this,
                     &Controller::onTabOszi_checkBoxMarkerAbsClicked);
    QObject::connect(oszi, &TabOszilloscope::offsetEdited, this, &Controller::onTabOszi_offsetEdited);
    QObject::connect(oszi, &TabOszilloscope::rangeEdited, this, &Controller::onTabOszi_rangeEdited);
    QObject::connect(oszi, &TabOszilloscope::samplingPeriodChosen, this, &Controller::onTabOszi_samplingPeriodChosen);

    const TabSensors *sensors = d->view->tabSensors();
    QObject::connect(sensors, &TabSensors::sensorNameEdited, this, &Controller::onTabSensors_nameEdited);
    QObject::connect(sensors, &TabSensors::sensorColorEdited, this, &Controller::onTabSensors_colorEdited);
    QObject::connect(sensors, &TabSensors::sensorLimitsEdited, this, &Controller::onTabSensors_limitsEdited);

    const TabBlackBox *blackBox = d->view->tabBlackBox();
    QObject::connect(blackBox, &TabBlackBox::listRequested, this, &Controller::onTabBlackBox_listClicked);
    QObject::connect(blackBox, &TabBlackBox::importClicked, this, &Controller::onTabBlackBox_importClicked);
    QObject::connect(d->view, &View::terminalSend, this, &Controller::onTerminalSend);
    QObject::connect(d->view, &View::about, this, &Controller::onActionAbout);
    QObject::connect(d->view, &View::progressCancelled, this, &Controller::cancelConnecting);
}

void Controller::connectDevice()
{
    MesotraConnector *connector = &d->connector;
    QObject::connect(connector, &MesotraConnector::connected, this, &Controller::onConnected);
    QObject::connect(connector, &MesotraConnector::disconnected, this, &Controller::onDisconnected);
    QObject::connect(connector, &MesotraConnector::messageReceived, this, &Controller::onMessageReceived);
    QObject::connect(connector, &MesotraConnector::written, d->view, &View::terminalSent);
    QObject::connect(connector, &MesotraConnector::error, this, [this](QAbstractSocket::SocketError error) {
        if (d->demo.isActive())
            onDemoFailed(DemoBox::End::Ended);
        else if (d->linkWanted && !waitForRestart(error))
            connectionError(error);
    });

    QObject::connect(&d->deviceDescriptionTimer, &QTimer::timeout, this,
                     &Controller::onTimerWaitForDeviceDescription_timeout);
    QObject::connect(&d->sensorDescriptionTimer, &QTimer::timeout, this,
                     &Controller::onTimerWaitForSensorDescription_timeout);
    QObject::connect(&d->resumeTimer, &QTimer::timeout, this, &Controller::resumeLines);
    QObject::connect(&d->deferredTimer, &QTimer::timeout, this, &Controller::handleDeferred);
    QObject::connect(&d->progressTimer, &QTimer::timeout, this, &Controller::hideProgressWhenIdle);
    QObject::connect(&d->listTimer, &QTimer::timeout, this,
                     [this] { d->view->tabBlackBox()->setListButtonEnabled(true); });
}

bool Controller::isRecordingRunning() const
{
    return d->recordingRunning;
}

int Controller::seriesIndex(int position) const
{
    return d->series.index(position);
}

bool Controller::areValuesInThousandths() const
{
    return d->valuesInThousandths;
}

MesotraConnector *Controller::connector() const
{
    return &d->connector;
}

/// Called from the model's long loops; an export that the view has started shows the bar here first.
void Controller::showFileProgress(int percent)
{
    if (d->progressBar->isHidden()) {
        d->progressBar->setFormat(tr("Saving..."));
        d->progressBar->show();
        d->progressTimer.start();
    }
    d->progressBar->setValue(d->importTotal > 0 ? (100 * d->importDone + percent) / d->importTotal : percent);
    QCoreApplication::processEvents();
}

void Controller::hideProgressWhenIdle()
{
    if (d->model->isBusy())
        d->progressTimer.start();
    else
        d->progressBar->hide();
}

bool Controller::isOccupied() const
{
    return d->openPrompts > 0 || d->fetching || d->importTotal > 0 || d->view->isAsking() || d->model->isBusy();
}

bool Controller::refuseWhileOccupied()
{
    if (!isOccupied())
        return false;
    qCDebug(lcController) << "refused: a dialog is open or a file is being read or written";
    d->view->showStatus(tr("Bitte warten, bis der laufende Vorgang beendet ist."));
    return true;
}

bool Controller::refuseWhileConnecting()
{
    if (!d->view->isProgressShown())
        return false;
    d->view->showStatus(tr("Bitte warten, bis der laufende Vorgang beendet ist."));
    return true;
}

void Controller::onActionAbout()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->view->showAbout();
}
