#include "controller/link/demolink.h"

#include "controller/deferredquestions.h"
#include "controller/link/boxlink.h"
#include "controller/logging.h"
#include "controller/occupancy.h"
#include "model/model.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

namespace {

QString failureText(DemoBox::End end)
{
    switch (end) {
    case DemoBox::End::NotStarted:
        return DemoLink::tr("Die Demo ist nicht möglich: Der Simulator lässt sich nicht starten.");
    case DemoBox::End::NotListening:
        return DemoLink::tr("Die Demo ist nicht möglich: Der Simulator antwortet nicht.");
    case DemoBox::End::Ended:
        break;
    }
    return DemoLink::tr("Die Demo ist beendet: Der Simulator läuft nicht mehr.");
}

} // namespace

DemoLink::DemoLink(const Desk &desk, DemoBox &box, BoxLink &link, DeferredQuestions &questions)
    : m_desk(desk)
    , m_box(box)
    , m_link(link)
    , m_questions(questions)
{
    showState();
}

void DemoLink::toggle()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    if (m_box.isActive()) {
        m_link.disconnectBox();
        return;
    }
    showState(); // the simulator may have been removed or installed
    if (!m_box.isAvailable() || !mayStart())
        return;
    m_link.leaveForAnother();
    m_desk.view.showProgress(tr("Die Demo wird gestartet ..."));
    m_box.start();
    showState();
}

/// Asks before a link is given up, and before simulated shots are mixed with real ones.
bool DemoLink::mayStart()
{
    QStringList reasons;
    if (m_link.isConnected())
        reasons << tr("Die Verbindung zur Box wird getrennt.");
    if (m_desk.model.numChannels(0) > 0 || !m_desk.model.currentFile().isEmpty())
        reasons << tr("Was in der Demo aufgezeichnet wird, kommt in das geöffnete Projekt.");
    if (reasons.isEmpty())
        return true;
    reasons << tr("Demo starten?");
    return m_desk.occupancy.ask([&] { return m_desk.view.askYesNo(tr("Demo"), reasons.join(QLatin1Char('\n'))); });
}

void DemoLink::onListening(quint16 port)
{
    qCDebug(lcController) << Q_FUNC_INFO << port;
    m_link.connectToSimulator(port);
}

void DemoLink::onFailed(DemoBox::End end)
{
    qCDebug(lcController) << Q_FUNC_INFO << end;
    m_link.leave();
    showState();
    m_questions.put(Question::DemoWarning, [this, text = failureText(end)] {
        const UninvitedQuestions uninvited(m_desk.view.questions());
        m_desk.occupancy.ask([&] { m_desk.view.showWarning(text, tr("Demo")); });
    });
}

void DemoLink::stop()
{
    if (!m_box.isActive())
        return;
    m_box.stop();
    showState();
    m_desk.view.showStatus(tr("Die Demo ist beendet."));
}

void DemoLink::showState()
{
    if (m_box.isActive())
        m_desk.view.setDemoState(m_desk.model.isConnected() ? DemoState::Running : DemoState::Starting);
    else
        m_desk.view.setDemoState(m_box.isAvailable() ? DemoState::Off : DemoState::Unavailable);
}

bool DemoLink::refuseTransfer() const
{
    if (!m_box.isActive())
        return false;
    m_desk.view.showStatus(tr("Das ist in der Demo nicht möglich: Die simulierte Box hat keinen Speicher."));
    return true;
}
