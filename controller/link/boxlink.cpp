#include "controller/link/boxlink.h"

#include "controller/deferredquestions.h"
#include "controller/link/linkreason.h"
#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/recording/recorder.h"
#include "device/demobox.h"
#include "device/mesotraconnector.h"
#include "device/protocol/hostaddress.h"
#include "model/model.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <utility>

namespace {

/// Of an attempt that may have been under way; if the progress shown is that of a fetch, it goes on.
void hideProgress(View &view, const Occupancy &occupancy)
{
    if (!occupancy.isUnderWay(Task::Fetch))
        view.hideProgress();
}

} // namespace

BoxLink::BoxLink(const Desk &desk, MesotraConnector &connector, const DemoBox &demoBox, DeferredQuestions &questions,
                 Recorder &recorder, Target target)
    : m_view(desk.view)
    , m_model(desk.model)
    , m_occupancy(desk.occupancy)
    , m_connector(connector)
    , m_demoBox(demoBox)
    , m_questions(questions)
    , m_recorder(recorder)
    , m_dialogs(desk)
    , m_reconnect(std::move(target.retryDelays))
    , m_address(std::move(target.address))
{
    connect(&m_restart, &BoxRestart::retry, this, &BoxLink::retryAfterRestart);
    connect(&m_reconnect, &Reconnect::attemptDue, this, &BoxLink::retryAfterLoss);
    m_view.setAddressValidator(isValidHostAddress);
    m_view.setDeviceAddress(m_address);
}

bool BoxLink::isConnected() const
{
    return m_connector.isConnected();
}

bool BoxLink::isDemo() const
{
    return m_demoBox.isActive();
}

bool BoxLink::send(const QString &text)
{
    if (m_connector.write(text))
        return true;
    showNotConnected();
    return false;
}

void BoxLink::sendTerminalLine(const QString &line)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (isConnected())
        (void)send(line + QLatin1Char('\n')); // who typed it has been told of a failure
    else
        showNotConnected();
}

void BoxLink::showNotConnected()
{
    m_view.showStatus(tr("Keine Verbindung zur Mesotra Hardware."));
}

// --- The user connects and disconnects ---

void BoxLink::toggle()
{
    if (m_occupancy.refuseWhileOccupied())
        return;
    if (isConnected()) {
        qCDebug(lcController) << " isConnected -> disconnect!";
        disconnectBox();
    } else if (m_view.isProgressShown()) {
        giveUp();
    } else if (m_address.isEmpty()) {
        offerReconnect({});
    } else {
        qCDebug(lcController) << " not connected -> connect!";
        connectTo(m_address, tr("Verbinden ..."));
    }
}

void BoxLink::disconnectBox()
{
    m_connector.stopMeasurement();
    m_recorder.stopped(); // the echo will no longer arrive
    leave();
}

void BoxLink::connectToAddress(const QString &address)
{
    qCDebug(lcController) << Q_FUNC_INFO << address;
    if (m_occupancy.refuseWhileOccupied() || !mayLeaveFor(address))
        return;
    leaveForAnother();
    connectTo(address);
}

/// Asks before a link that works is given up.
bool BoxLink::mayLeaveFor(const QString &address)
{
    if (!isValidHostAddress(address)) {
        m_view.showStatus(tr("Keine gültige Adresse: %1").arg(address));
        return false;
    }
    if (!isConnected())
        return true;
    if (!isDemo() && m_connector.hostAddress() == address) {
        m_view.showStatus(tr("Ventaro ist mit %1 verbunden.").arg(address));
        return false;
    }
    return confirmLeaving(address);
}

bool BoxLink::confirmLeaving(const QString &address)
{
    const QString question =
        isDemo() ? tr("Die Demo wird beendet. Mit %1 verbinden?").arg(address)
                 : tr("Die Verbindung zu %1 wird getrennt. Mit %2 verbinden?").arg(m_connector.hostAddress(), address);
    return m_occupancy.ask([&] { return m_view.askYesNo(tr("Verbinden"), question); });
}

void BoxLink::connectTo(const QString &address)
{
    m_address = address;
    connectTo(address, tr("Verbinden mit %1 ...").arg(address));
}

void BoxLink::connectTo(const QString &address, const QString &progressText)
{
    if (address != m_reconnect.address())
        m_reconnect.end(); // the user prefers another box
    want();
    m_view.setDeviceAddress(address);
    m_view.showProgress(progressText);
    m_connector.connect(address);
}

void BoxLink::connectToSimulator(quint16 port)
{
    want();
    m_connector.connectToSimulator(port);
}

/// From now on errors concern the new link; one of the former link is out of date.
void BoxLink::want()
{
    m_wanted = true;
    m_questions.drop(Question::LinkError);
    emit wanted();
}

void BoxLink::giveUp()
{
    if (m_occupancy.isUnderWay(Task::Fetch))
        return;
    m_restart.end();
    leave();
    m_view.showStatus(tr("Verbindungsaufbau abgebrochen."));
}

void BoxLink::leaveForAnother()
{
    if (isConnected())
        disconnectBox();
    else
        leave();
}

void BoxLink::leave()
{
    m_wanted = false;
    m_reconnect.end();
    m_questions.drop(Question::LinkError);
    m_connector.disconnectFromHost();
    hideProgress(m_view, m_occupancy);
    emit left();
}

// --- What the link reports ---

void BoxLink::opened()
{
    hideProgress(m_view, m_occupancy);
    want(); // the firmware dialog connects too
    const QString host = isDemo() ? QString() : m_connector.hostAddress();
    if (std::exchange(m_measuredHost, host) != host)
        m_view.forgetLiveValues(); // of another box
    m_restart.end();
    m_reconnect.noteLink();
    m_model.blockSignals(false); // a deletion with a syntax error may have left them blocked
    m_model.setConnected(true);
    m_model.emitAppStateChanged();
    showOpened();
    emit established();
}

void BoxLink::showOpened()
{
    if (isDemo()) {
        m_view.showStatus(tr("Die Demo läuft."));
        return;
    }
    m_view.showStatus(tr("Verbunden mit %1.").arg(m_connector.hostAddress()));
}

void BoxLink::closed()
{
    emit closing();
    // After the last line of the box, which may have stopped the recording or reported more samples.
    const bool wasConnected = m_model.isConnected();
    m_model.setConnected(false);
    const bool wasRecording = m_recorder.endWithLink();
    m_model.blockSignals(false);
    m_model.emitAppStateChanged();
    m_view.setRecordingRunning(false);
    if (wasConnected)
        m_view.showStatus(wasRecording ? tr("Verbindung getrennt, Aufnahme beendet. Alle Daten sind erhalten.")
                                       : tr("Verbindung getrennt."));
    if (!wasConnected || !m_wanted || isDemo())
        return;
    m_reconnect.begin(m_connector.hostAddress());
    emit lost(m_connector.hostAddress(), wasRecording);
}

void BoxLink::noteProven()
{
    m_reconnect.noteBack();
    m_dialogs.withdraw(); // what they say is no longer true
}

void BoxLink::noteMute()
{
    if (m_reconnect.isLinkUnproven())
        loseSilent();
}

void BoxLink::loseSilent()
{
    m_connector.disconnectFromHost();
    onError(QAbstractSocket::RemoteHostClosedError);
}

void BoxLink::onError(QAbstractSocket::SocketError error)
{
    if (isDemo()) { // nobody wants to reconnect to a simulator under another address
        emit demoLost();
    } else if (m_wanted && m_view.isProgressShown() && !m_occupancy.isUnderWay(Task::Fetch)
               && m_restart.explains(error)) {
        m_view.showProgress(tr("Die Mesotra Box startet neu. Verbinden mit %1 ...").arg(m_connector.hostAddress()));
        m_restart.retryLater();
    } else if (m_wanted) {
        m_reconnect.noteError(error);
        if (!m_reconnect.isActive() || m_reconnect.takeReport())
            emit failed(error);
        else
            hideProgress(m_view, m_occupancy); // of an attempt that the user did not want to wait for
    }
}

void BoxLink::retryAfterLoss()
{
    if (m_wanted && !isConnected())
        m_connector.connect(m_reconnect.address());
}

void BoxLink::retryAfterRestart()
{
    if (m_wanted && !isConnected() && m_view.isProgressShown())
        m_connector.connect(m_connector.hostAddress());
}

// --- Errors ---

void BoxLink::reportError(QAbstractSocket::SocketError error)
{
    hideProgress(m_view, m_occupancy);
    if (!m_occupancy.mayInterrupt()) {
        m_questions.put(Question::LinkError, [this, error] { emit failed(error); });
        return;
    }
    m_questions.drop(Question::LinkError);
    const UninvitedQuestions uninvited(m_view.questions());
    m_dialogs.tell(error);
    if (!isConnected()) // the box may be back while the message was open
        offerReconnect(linkAdvice(error, m_connector.hostAddress()));
}

void BoxLink::offerReconnect(const QString &reason)
{
    const std::optional<QString> address = m_dialogs.askAddress(m_address, reason);
    if (!address) {
        qCDebug(lcController) << "dialog rejected";
        m_wanted = isConnected() || m_reconnect.isActive(); // the box may be back, or is still waited for
        return;
    }
    // The dialog accepts valid addresses only; prompts scripted by a test may not.
    if (!isValidHostAddress(*address)) {
        m_view.showStatus(tr("Keine gültige Adresse: %1").arg(*address));
        return;
    }
    connectTo(*address);
}
