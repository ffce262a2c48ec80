#include "controller/controller.h"

#include "controller/controllerparts.h"
#include "controller/logging.h"
#include "view/blackbox/tabblackbox.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/window/view.h"

Controller::Controller(Model *model, View *view, const ControllerOptions &options)
    : d(std::make_unique<ControllerParts>(*model, *view, options))
{
    qCDebug(lcController) << Q_FUNC_INFO;
    connectActions(*view);
    connectTabs(*view);
    connectDevice();
    handleMessages();
}

Controller::~Controller()
{
    qCDebug(lcController) << Q_FUNC_INFO;
}

// Here and below only what is logged under a name of this class; ControllerParts connects the rest.
void Controller::connectActions(const View &view)
{
    connect(&view, &View::newProject, this, &Controller::onNewProject);
    connect(&view, &View::openProject, this, &Controller::onOpenProject);
    connect(&view, &View::saveProject, this, &Controller::onSaveProject);
    connect(&view, &View::saveProjectAs, this, &Controller::onSaveProjectAs);
    connect(&view, &View::importBlackBox, this, &Controller::onImportBlackBox);
    connect(&view, &View::firmwareUpdate, this, &Controller::onFirmwareUpdate);
    connect(&view, &View::connectDisconnect, this, &Controller::onActionConnect);
    connect(&view, &View::calibrate, this, &Controller::onActionCalibration);
    connect(&view, &View::startStopRecording, this, &Controller::onActionStartStopRecording);
    connect(&view, &View::quit, this, &Controller::onActionQuit);
}

void Controller::connectTabs(const View &view)
{
    const TabProject *project = view.tabProject();
    connect(project, &TabProject::projectDataChanged, this, &Controller::onTabProject_projectDataChanged);
    connect(project, &TabProject::clearDataClicked, this, &Controller::onTabProject_clearDataClicked);
    connect(project, &TabProject::phaseEditChanged, this, &Controller::onTabProject_onPhaseEditChanged);

    const TabOszilloscope *oszi = view.tabOszi();
    connect(oszi, &TabOszilloscope::deleteMeasurements, this, &Controller::onTabOszi_deleteMeasurements);
    connect(oszi, &TabOszilloscope::markerChangedAbsolute, this, &Controller::onTabOszi_markerChangedAbsolute);
    connect(oszi, &TabOszilloscope::markerChangedRelative, this, &Controller::onTabOszi_markerChangedRelative);
    connect(oszi, &TabOszilloscope::checkBoxMarkerAbsClicked, this, &Controller::onTabOszi_checkBoxMarkerAbsClicked);

    const TabBlackBox *blackBox = view.tabBlackBox();
    connect(blackBox, &TabBlackBox::listRequested, this, &Controller::onTabBlackBox_listClicked);
    connect(blackBox, &TabBlackBox::importClicked, this, &Controller::onTabBlackBox_importClicked);
    connect(blackBox, &TabBlackBox::fetchClicked, this, &Controller::onTabBlackBox_fetchBlackBoxDataClicked);
    connect(blackBox, &TabBlackBox::openLocalFolderClicked, this, &Controller::onTabBlackBox_openLocalFolderClicked);
}

void Controller::connectDevice()
{
    const MesotraConnector *box = &d->connector;
    connect(box, &MesotraConnector::connected, this, &Controller::onConnected);
    connect(box, &MesotraConnector::disconnected, this, &Controller::onDisconnected);
    connect(box, &MesotraConnector::messageReceived, this, &Controller::onMessageReceived);
    connect(&d->link, &BoxLink::failed, this, &Controller::connectionError);
    connect(&d->descriptions, &BoxDescriptions::deviceWaitOver, this,
            &Controller::onTimerWaitForDeviceDescription_timeout);
    connect(&d->descriptions, &BoxDescriptions::sensorWaitOver, this,
            &Controller::onTimerWaitForSensorDescription_timeout);
}

void Controller::handleMessages()
{
    d->dispatch.setHandler(MessageKind::Sample, [this](const QString &message) { handleValueMessage(message); });
    d->dispatch.setHandler(MessageKind::DeviceDescription,
                           [this](const QString &message) { handleDeviceDescription(message); });
    d->dispatch.setHandler(MessageKind::SensorDescription,
                           [this](const QString &message) { handleSensorDescription(message); });
}

bool Controller::isRecordingRunning() const
{
    return d->recorder.isRunning();
}

int Controller::seriesIndex(int position) const
{
    return d->recorder.seriesIndex(position);
}

bool Controller::areValuesInThousandths() const
{
    return d->recorder.areValuesInThousandths();
}

MesotraConnector *Controller::connector() const
{
    return &d->connector;
}

qint64 Controller::demoProcessId() const
{
    return d->demoBox.processId();
}

// --- Actions of the window ---

void Controller::onNewProject()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->files.newProject();
}

void Controller::onOpenProject()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->files.open();
}

void Controller::onSaveProject()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->saving.save();
}

void Controller::onSaveProjectAs()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->saving.saveAs();
}

void Controller::onImportBlackBox()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->logger.list.requestIfPossible();
}

void Controller::onFirmwareUpdate()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->watch.firmware.run();
}

void Controller::onActionConnect()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->link.toggle();
}

void Controller::onActionCalibration()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->recording.calibrate();
}

void Controller::onActionStartStopRecording()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->recording.startOrStop();
}

void Controller::onActionQuit()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->files.quit();
}

void Controller::leaveAtOnce()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->files.leaveAtOnce();
}

// --- Tabs ---

void Controller::onTabProject_projectDataChanged()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->tabEdits.takeProjectData();
}

void Controller::onTabProject_clearDataClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->deletion.deleteAll();
}

void Controller::onTabProject_onPhaseEditChanged(int phase, const QString &name)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->tabEdits.setPhaseName(phase, name);
}

void Controller::onTabOszi_deleteMeasurements(const QString &range)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->deletion.deleteRange(range);
}

void Controller::onTabOszi_markerChangedAbsolute(int index, int pos_ms)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->tabEdits.setMarkerAbsolute(index, pos_ms);
}

void Controller::onTabOszi_markerChangedRelative(int index, int pos_ms)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->tabEdits.setMarkerRelative(index, pos_ms);
}

void Controller::onTabOszi_checkBoxMarkerAbsClicked(bool absolute)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->tabEdits.setMarkersAbsolute(absolute);
}

void Controller::onTabBlackBox_listClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->logger.list.request();
}

void Controller::onTabBlackBox_importClicked(const QStringList &files)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->logger.import.run(files);
}

void Controller::onTabBlackBox_fetchBlackBoxDataClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->logger.fetch.fetchSelected();
}

void Controller::onTabBlackBox_openLocalFolderClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->logger.local.open();
}

QStringList Controller::copyLocalDirToTmpDir(const QString &localDirectory, const QDir &temporaryDirectory)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    return d->logger.local.copy(localDirectory, temporaryDirectory);
}

// --- The link and its messages ---

void Controller::onMessageReceived(const QString &message)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->lines.take(message);
}

void Controller::handleValueMessage(const QString &message)
{
    // The clock is not read while nobody sees the log.
    qCDebug(lcController).nospace() << Q_FUNC_INFO << " message=" << message
                                    << " ms=" << d->recorder.restartLineClock();
    d->recorder.takeSampleLine(message);
}

void Controller::handleDeviceDescription(const QString &message)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->descriptions.takeDevice(message);
}

void Controller::handleSensorDescription(const QString &message)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->descriptions.takeSensors(message);
}

void Controller::onConnected()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->link.opened();
}

void Controller::onDisconnected()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->link.closed();
}

void Controller::connectionError(QAbstractSocket::SocketError error)
{
    qCDebug(lcController) << Q_FUNC_INFO << error;
    d->link.reportError(error);
}

void Controller::onTimerWaitForDeviceDescription_timeout()
{
    qCDebug(lcController) << Q_FUNC_INFO;
}

void Controller::onTimerWaitForSensorDescription_timeout()
{
    qCDebug(lcController) << Q_FUNC_INFO << "valuesInThousandths=" << true;
    d->recorder.setValuesInThousandths(true);
}
