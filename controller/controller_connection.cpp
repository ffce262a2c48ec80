#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "device/protocol/hostaddress.h"
#include "device/protocol/samplingperiod.h"
#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/window/view.h"

#include <QApplication>

// --- The user connects and disconnects -------------------------------------------------------------------------

void Controller::onActionConnect()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    if (d->connector.isConnected()) {
        qCDebug(lcController) << " isConnected -> disconnect!";
        disconnectBox();
    } else if (d->view->isProgressShown()) {
        cancelConnecting();
    } else if (d->address.isEmpty()) {
        offerReconnect();
    } else {
        qCDebug(lcController) << " not connected -> connect!";
        connectTo(d->address, tr("Verbinden ..."));
    }
}

void Controller::disconnectBox()
{
    d->connector.stopMeasurement();
    stopRecording();
    leaveDevice();
}

void Controller::onConnectToAddress(const QString &address)
{
    qCDebug(lcController) << Q_FUNC_INFO << address;
    if (refuseWhileOccupied() || !mayLeaveForAddress(address))
        return;
    if (d->connector.isConnected())
        disconnectBox();
    else
        leaveDevice(); // an attempt that may be under way
    d->address = address;
    connectTo(address, tr("Verbinden mit %1 ...").arg(address));
}

/// Asks before a link that works is given up.
bool Controller::mayLeaveForAddress(const QString &address)
{
    if (!isValidHostAddress(address)) {
        d->view->showStatus(tr("Keine gültige Adresse: %1").arg(address));
        return false;
    }
    if (!d->connector.isConnected())
        return true;
    if (!d->demo.isActive() && d->connector.hostAddress() == address) {
        d->view->showStatus(tr("Ventaro ist mit %1 verbunden.").arg(address));
        return false;
    }
    const QString question =
        d->demo.isActive()
            ? tr("Die Demo wird beendet. Mit %1 verbinden?").arg(address)
            : tr("Die Verbindung zu %1 wird getrennt. Mit %2 verbinden?").arg(d->connector.hostAddress(), address);
    return d->prompt([&] { return d->view->askYesNo(tr("Verbinden"), question); });
}

void Controller::connectTo(const QString &address, const QString &progressText)
{
    d->linkWanted = true;
    d->deferredError.reset();
    d->view->setDeviceAddress(address);
    d->view->showProgress(progressText);
    d->connector.connect(address);
}

void Controller::cancelConnecting()
{
    if (cancelFetch())
        return;
    d->sinceRestart.invalidate();
    leaveDevice();
    d->view->showStatus(tr("Verbindungsaufbau abgebrochen."));
}

void Controller::leaveDevice()
{
    d->linkWanted = false;
    d->deferredError.reset();
    d->connector.disconnectFromHost();
    d->view->hideProgress(); // of an attempt that may have been under way
    stopDemo();
}

// --- The sampling period ---------------------------------------------------------------------------------------

void Controller::onTabOszi_samplingPeriodChosen(const QString &label)
{
    qCDebug(lcController) << Q_FUNC_INFO << label;
    if (refuseWhileOccupied() || label == samplingPeriodLabel(d->model->clock()))
        return;
    if (d->recordingRunning) {
        d->view->showStatus(tr("Die Abtastrate lässt sich nicht ändern, solange eine Aufzeichnung läuft."));
        return;
    }
    // A project has one period for all its measurements: those stored would be drawn over another time.
    const QString question = tr("Die vorhandenen Messungen erhalten die Zeitachse der neuen Abtastrate. Fortfahren?");
    if (d->model->numChannels(0) > 0
        && !d->prompt([&] { return d->view->askYesNo(tr("Abtastrate ändern"), question); }))
        return;
    d->connector.setClock(label); // takes effect with the answer of the box
}

/// A project that came in has a period of its own: what is recorded into it must be sampled with that.
void Controller::matchBoxToProject()
{
    const int clock = d->model->clock();
    if (!d->connector.isConnected() || clock == d->boxClock)
        return;
    const QString label = samplingPeriodLabel(clock);
    if (label.isEmpty())
        d->view->showStatus(tr("Achtung: Das Projekt ist mit %1 ms je Wert aufgezeichnet, die Box misst mit %2 ms.")
                                .arg(clock)
                                .arg(d->boxClock));
    else
        d->boxClock = clock; // the next project may come in before the answer
    d->connector.setClock(label);
}

/// A new project begins with the sensors of the box that is connected, which describes them only once.
void Controller::describeBoxAgain()
{
    if (!d->model->isConnected())
        return;
    if (d->deviceDescription)
        d->model->setDeviceDescription(*d->deviceDescription);
    if (d->sensorDescription)
        d->model->setSensorDescription(*d->sensorDescription);
    d->model->emitProjectChanged();
}

// --- What the link reports -------------------------------------------------------------------------------------

void Controller::onConnected()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->view->hideProgress();
    d->linkWanted = true; // the firmware dialog connects too
    const QString host = d->demo.isActive() ? QString() : d->connector.hostAddress();
    if (std::exchange(d->measuredHost, host) != host)
        d->view->forgetLiveValues(); // of another box
    d->sinceRestart.invalidate();
    d->deferredError.reset();
    d->deviceDescription.reset();
    d->sensorDescription.reset();
    d->model->blockSignals(false);
    d->model->setConnected(true);
    d->model->emitAppStateChanged();
    if (d->demo.isActive())
        showDemoState();
    else
        d->view->rememberAddress(d->connector.hostAddress());
    d->view->showStatus(d->demo.isActive() ? tr("Die Demo läuft.")
                                           : tr("Verbunden mit %1.").arg(d->connector.hostAddress()));
    d->connector.setClock(QStringLiteral("100ms"));
    d->boxClock = 100;
    if (d->model->clock() != 100)
        markModified();
    d->model->setClock(100);
    qCDebug(lcController) << "starting DeviceDescription timer";
    d->deviceDescriptionTimer.start();
    d->connector.requestDeviceDescription();
    qCDebug(lcController) << "starting SensorDescription timer";
    d->sensorDescriptionTimer.start();
    d->connector.requestSensorDescription();
}

void Controller::onDisconnected()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    while (!d->heldLines.empty()) // what the box sent before comes first
        dispatchHeldLine();
    d->deviceDescriptionTimer.stop();
    d->sensorDescriptionTimer.stop();
    d->listActive = false;
    d->listBlock.clear();
    d->view->tabBlackBox()->setListButtonEnabled(true);
    const bool wasConnected = d->model->isConnected();
    const bool wasRecording = d->recordingRunning;
    d->model->setConnected(false);
    d->recordingRunning = false;
    if (wasRecording)
        d->model->endRecording();
    d->model->blockSignals(false);
    d->model->emitAppStateChanged();
    d->view->setRecordingRunning(false);
    if (wasConnected)
        d->view->showStatus(wasRecording ? tr("Verbindung getrennt, Aufnahme beendet. Alle Daten sind erhalten.")
                                         : tr("Verbindung getrennt."));
}

void Controller::onTimerWaitForDeviceDescription_timeout()
{
    qCDebug(lcController) << Q_FUNC_INFO;
}

void Controller::onTimerWaitForSensorDescription_timeout()
{
    qCDebug(lcController) << Q_FUNC_INFO << "valuesInThousandths=" << true;
    if (!std::exchange(d->valuesInThousandths, true))
        d->view->forgetLiveValues(); // a thousand times too large
}

// --- Errors ----------------------------------------------------------------------------------------------------

void Controller::connectionError(QAbstractSocket::SocketError error)
{
    qCDebug(lcController) << Q_FUNC_INFO << error;
    if (!d->fetching) // whose progress is shown
        d->view->hideProgress();
    if (isOccupied() || QApplication::activeModalWidget()) {
        d->deferredError = error; // one dialog at a time
        d->deferredTimer.start(0);
        return;
    }
    d->deferredError.reset();
    reportConnectionError(error);
    offerReconnect();
}

void Controller::reportConnectionError(QAbstractSocket::SocketError error)
{
    QString text;
    if (error == QAbstractSocket::RemoteHostClosedError)
        text = tr("Die Mesotra Hardware ist nicht mehr erreichbar.");
    else if (error == QAbstractSocket::HostNotFoundError)
        text = tr("Die Mesotra Hardware wurde nicht gefunden! Bitte IP-Adresse überprüfen!");
    else if (error == QAbstractSocket::ConnectionRefusedError)
        text = tr("Die Verbindung wurde abgelehnt!\n(Die IP-Adresse wurde jedoch gefunden.)");
    else
        return;
    d->prompt([&] { d->view->showMessage(text, tr("Netzwerk Fehler")); });
}

void Controller::offerReconnect()
{
    const std::optional<QString> address = d->prompt([this] { return d->view->askAddress(d->address); });
    if (!address) {
        qCDebug(lcController) << "dialog rejected";
        d->linkWanted = false;
        return;
    }
    if (!isValidHostAddress(*address)) {
        d->view->showStatus(tr("Keine gültige Adresse: %1").arg(*address));
        return;
    }
    d->address = *address;
    connectTo(*address, tr("Verbinden mit %1 ...").arg(*address));
}
