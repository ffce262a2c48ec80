#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/view.h"

#include <QApplication>

#include <algorithm>

namespace {

// How often to look whether something that makes lines or questions wait is over.
constexpr int kRetryInterval = 20;
// How long no other project description must follow before the user is asked about one, in ms.
constexpr int kProjectSettled = 100;
// A list block that never ends must not fill the memory.
constexpr int kMaxListEntries = 100000;

/// True if a project file would hold the same of both.
bool isSavedAlike(const SensorDescription &a, const SensorDescription &b)
{
    if (a.numSensorGroups() == 0 || b.numSensorGroups() == 0)
        return a.numSensorGroups() == b.numSensorGroups();
    const SensorGroup &left = a.sensorGroup(0);
    const SensorGroup &right = b.sensorGroup(0);
    bool alike = left.numSensors() == right.numSensors();
    for (int i = 0; alike && i < std::min(kNumSensors, left.numSensors()); ++i)
        alike = left.sensorName(i) == right.sensorName(i) && left.sensorMinimum(i) == right.sensorMinimum(i)
                && left.sensorMaximum(i) == right.sensorMaximum(i);
    return alike;
}

bool isAnySensorNamed(const SensorDescription &description)
{
    if (description.numSensorGroups() == 0)
        return false;
    const SensorGroup &group = description.sensorGroup(0);
    bool named = false;
    for (int i = 0; !named && i < group.numSensors(); ++i)
        named = !group.sensorName(i).isEmpty();
    return named;
}

} // namespace

// --- Lines in order --------------------------------------------------------------------------------------------

bool Controller::areLinesHeld() const
{
    return d->holds > 0 || d->dispatching || d->model->isBusy();
}

void Controller::onMessageReceived(const QString &message)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (areLinesHeld() || !d->heldLines.empty()) {
        d->heldLines.push_back(message);
        d->connector.setPaused(true);
        if (!d->resumeTimer.isActive())
            d->resumeTimer.start(kRetryInterval);
        return;
    }
    dispatch(message);
}

void Controller::resumeLines()
{
    while (!areLinesHeld() && !d->heldLines.empty())
        dispatchHeldLine();
    if (areLinesHeld())
        d->resumeTimer.start(kRetryInterval);
    else
        d->connector.setPaused(false);
}

void Controller::dispatchHeldLine()
{
    const QString message = d->heldLines.front();
    d->heldLines.pop_front();
    dispatch(message);
}

void Controller::dispatch(const QString &message)
{
    d->dispatching = true;
    d->view->terminalReceived(message);
    switch (classify(message)) {
    case MessageKind::Sample:
        handleValueMessage(message);
        break;
    case MessageKind::RunStarted:
        qCDebug(lcController) << "received 'run=1'";
        startRecording();
        break;
    case MessageKind::RunStopped:
        stopRecording();
        break;
    case MessageKind::ClockEcho:
        handleClockEcho(message);
        break;
    case MessageKind::DeviceDescription:
        d->deviceDescriptionTimer.stop();
        handleDeviceDescription(message);
        break;
    case MessageKind::SensorDescription:
        d->sensorDescriptionTimer.stop();
        handleSensorDescription(message);
        break;
    case MessageKind::ListBegin:
        d->listActive = true;
        break;
    case MessageKind::ListEnd:
        finishList();
        break;
    case MessageKind::Other:
        handleListLine(message);
        break;
    }
    d->dispatching = false;
}

// --- Single messages -------------------------------------------------------------------------------------------

void Controller::handleClockEcho(const QString &message)
{
    const std::optional<int> clock = parseClockEcho(message);
    if (!clock || *clock < 1 || *clock > Model::kMaxClock) {
        qCDebug(lcController) << "ERROR";
        return;
    }
    d->model->blockSignals(false);
    if (*clock != d->model->clock())
        markModified();
    d->boxClock = *clock;
    d->model->setClock(*clock);
    d->view->tabOszi()->setClock(*clock, *clock * 100);
}

void Controller::handleListLine(const QString &message)
{
    if (!d->listActive || isDirectoryItself(message))
        return;
    if (d->listBlock.size() < kMaxListEntries)
        d->listBlock.append(message.simplified());
    else
        qCDebug(lcController) << "ERROR: list too long!";
}

void Controller::finishList()
{
    TabBlackBox *tab = d->view->tabBlackBox();
    tab->setList(d->listBlock);
    d->listBlock.clear();
    d->listTimer.stop();
    tab->setListButtonEnabled(true);
    d->listActive = false;
}

void Controller::handleSensorDescription(const QString &message)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (std::exchange(d->valuesInThousandths, false))
        d->view->forgetLiveValues(); // a thousandth of what they are
    const SensorDescription before = d->model->sensorDescription();
    SensorDescription description = before;
    applySensorDescription(parseSensorDescription(message), description);
    d->model->blockSignals(false);
    // A project without a file or any edit holds nothing to lose: connecting alone must not lead to questions.
    if (!d->model->currentFile().isEmpty() && !isSavedAlike(before, description))
        markModified();
    d->model->setSensorDescription(description);
    d->sensorDescription = description;
    qCDebug(lcController) << "emit Model::projectChanged()";
    d->model->emitProjectChanged();
    showNewSensorLimits(before, description);
    if (isAnySensorNamed(before) && !isSavedAlike(before, description))
        d->view->showStatus(tr("Namen und Grenzen der Sensoren kommen jetzt von der Box."));
}

/// Rows take over limits that are news; the user's own range survives the description that every connection brings.
void Controller::showNewSensorLimits(const SensorDescription &before, const SensorDescription &now)
{
    const bool known = before.numSensorGroups() > 0;
    const SensorGroup &group = now.sensorGroup(0);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const double minimum = group.sensorMinimum(sensor);
        const double maximum = group.sensorMaximum(sensor);
        const bool same = known && sensor < before.sensorGroup(0).numSensors()
                          && before.sensorGroup(0).sensorMinimum(sensor) == minimum
                          && before.sensorGroup(0).sensorMaximum(sensor) == maximum;
        if (!same && minimum < maximum)
            d->view->tabOszi()->setCurrentSensorRange(0, sensor, minimum, maximum);
    }
}

void Controller::handleDeviceDescription(const QString &message)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->deviceDescription = parseDeviceDescription(message);
    d->model->setDeviceDescription(*d->deviceDescription);
    d->model->emitProjectChanged(); // a description of the sensors need not follow
    const std::optional<ReceivedProject> received = parseProjectDescription(message);
    if (!received)
        return;
    qCDebug(lcController) << "Received projectData:" << received->data;
    // Asked about the newest only, once no other follows: a box that describes its project again and again asks once.
    d->receivedProject = received;
    d->deferredTimer.start(kProjectSettled);
}

// --- Questions that the box causes -----------------------------------------------------------------------------

void Controller::handleDeferred()
{
    if (!d->deferredError && !d->receivedProject && d->deferredWarning.isEmpty())
        return;
    if (isOccupied() || QApplication::activeModalWidget()) {
        d->deferredTimer.start(kRetryInterval);
        return;
    }
    if (d->deferredError)
        connectionError(*d->deferredError);
    else if (!d->deferredWarning.isEmpty())
        showDeferredWarning();
    else
        askAboutReceivedProject();
    d->deferredTimer.start(0);
}

void Controller::askAboutReceivedProject()
{
    const ReceivedProject asked = *d->receivedProject;
    d->receivedProject.reset();
    const LineHold hold(d->holds, d->connector, d->resumeTimer);
    const QString question =
        tr("Soll die aktuelle Projektbeschreibung durch die empfangenen Daten überschrieben werden?");
    if (d->prompt([&] { return d->view->askYesNo(tr("Projektbeschreibung empfangen"), question); }))
        applyReceivedProject(asked);
}

void Controller::applyReceivedProject(const ReceivedProject &received)
{
    d->model->blockSignals(false);
    d->model->setProjectData(received.data);
    for (int phase = 0; phase < kNumPhases; ++phase)
        d->model->setPhaseName(phase, received.phases[static_cast<std::size_t>(phase)]);
    markModified();
}

void Controller::onTabBlackBox_listClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (!d->connector.write(QStringLiteral("list\n"))) {
        d->view->showStatus(tr("Keine Verbindung zur Mesotra Hardware."));
        return;
    }
    d->view->tabBlackBox()->setListButtonEnabled(false);
    d->listTimer.start();
}

void Controller::onTerminalSend(const QString &line)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (!d->connector.isConnected() || !d->connector.write(line + QLatin1Char('\n')))
        d->view->showStatus(tr("Keine Verbindung zur Mesotra Hardware."));
}
