#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "model/model.h"
#include "view/window/view.h"

#include <utility>

namespace {

QString failureText(DemoBox::End end)
{
    switch (end) {
    case DemoBox::End::NotStarted:
        return Controller::tr("Die Demo ist nicht möglich: Der Simulator lässt sich nicht starten.");
    case DemoBox::End::NotListening:
        return Controller::tr("Die Demo ist nicht möglich: Der Simulator antwortet nicht.");
    case DemoBox::End::Ended:
        break;
    }
    return Controller::tr("Die Demo ist beendet: Der Simulator läuft nicht mehr.");
}

} // namespace

void Controller::connectDemo()
{
    QObject::connect(d->view, &View::startStopDemo, this, &Controller::onActionDemo);
    QObject::connect(d->view, &View::connectToAddress, this, &Controller::onConnectToAddress);
    QObject::connect(&d->demo, &DemoBox::listening, this, &Controller::onDemoListening);
    QObject::connect(&d->demo, &DemoBox::failed, this, &Controller::onDemoFailed);
    showDemoState();
}

qint64 Controller::demoProcessId() const
{
    return d->demo.processId();
}

void Controller::onActionDemo()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    if (d->demo.isActive()) {
        disconnectBox();
        return;
    }
    showDemoState(); // the simulator may be gone or have come
    if (!d->demo.isAvailable() || !mayStartDemo())
        return;
    if (d->connector.isConnected())
        disconnectBox();
    else
        leaveDevice(); // an attempt that may be under way
    d->view->showProgress(tr("Die Demo wird gestartet ..."));
    d->demo.start();
    showDemoState();
}

/// Asks before a link is given up, and before simulated shots get among others.
bool Controller::mayStartDemo()
{
    QStringList reasons;
    if (d->connector.isConnected())
        reasons << tr("Die Verbindung zur Box wird getrennt.");
    if (d->model->numChannels(0) > 0 || !d->model->currentFile().isEmpty())
        reasons << tr("Was in der Demo aufgezeichnet wird, kommt in das geöffnete Projekt.");
    if (reasons.isEmpty())
        return true;
    reasons << tr("Demo starten?");
    return d->prompt([&] { return d->view->askYesNo(tr("Demo"), reasons.join(QLatin1Char('\n'))); });
}

void Controller::onDemoListening(quint16 port)
{
    qCDebug(lcController) << Q_FUNC_INFO << port;
    d->linkWanted = true;
    d->deferredError.reset();
    d->connector.connectToSimulator(port);
}

/// The simulator did not start or is gone, or the link to it is.
void Controller::onDemoFailed(DemoBox::End end)
{
    qCDebug(lcController) << Q_FUNC_INFO << end;
    leaveDevice();
    showDemoState();
    d->deferredWarning = failureText(end);
    d->deferredTimer.start(0); // once no other dialog is up
}

void Controller::showDeferredWarning()
{
    const QString text = std::exchange(d->deferredWarning, {});
    d->prompt([&] { d->view->showWarning(text, tr("Demo")); });
}

/// Every end of the link is the end of the demonstration.
void Controller::stopDemo()
{
    if (!d->demo.isActive())
        return;
    d->demo.stop();
    showDemoState();
    d->view->showStatus(tr("Die Demo ist beendet."));
}

void Controller::showDemoState()
{
    if (d->demo.isActive())
        d->view->setDemoState(d->model->isConnected() ? DemoState::Running : DemoState::Starting);
    else
        d->view->setDemoState(d->demo.isAvailable() ? DemoState::Off : DemoState::Unavailable);
}

/// The simulated box has no storage to copy files from or to.
bool Controller::refuseInDemo()
{
    if (!d->demo.isActive())
        return false;
    d->view->showStatus(tr("Das ist in der Demo nicht möglich: Die simulierte Box hat keinen Speicher."));
    return true;
}
