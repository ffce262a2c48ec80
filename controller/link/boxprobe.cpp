#include "controller/link/boxprobe.h"

#include "controller/link/boxlink.h"
#include "controller/occupancy.h"
#include "model/model.h"
#include "view/home/tabhome.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QEvent>

#include <utility>

BoxProbe::BoxProbe(const Desk &desk, const BoxLink &link, quint16 port, Times times)
    : m_desk(desk)
    , m_link(link)
    , m_connector(port)
    , m_times(times)
{
    for (QTimer *timer : {&m_shownTimer, &m_answerTimer})
        timer->setSingleShot(true);
    connect(&m_shownTimer, &QTimer::timeout, this, &BoxProbe::stop);
    connect(&m_answerTimer, &QTimer::timeout, this, [this] { take(false); });
    connect(&m_connector, &MesotraConnector::connected, this, [this] { take(true); });
    connect(&m_connector, &MesotraConnector::error, this, [this] { take(false); });
    connect(desk.view.tabHome(), &TabHome::boxAnswersWanted, this, &BoxProbe::run);
    desk.view.tabHome()->installEventFilter(this);
}

BoxProbe::~BoxProbe()
{
    QObject::disconnect(&m_connector, nullptr, this, nullptr);
}

bool BoxProbe::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide)
        stop();
    return QObject::eventFilter(watched, event);
}

/// A box may serve its newest client only, so nobody is asked while a link is there or on its way.
bool BoxProbe::mayAsk() const
{
    return !m_link.isWanted() && !m_desk.model.isConnected() && !m_desk.view.isProgressShown();
}

void BoxProbe::run()
{
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    if (!mayAsk())
        return showRefusal();
    const QString question = tr("Ventaro baut zu jeder Box kurz eine Verbindung auf. Eine Box, die gerade für einen "
                                "anderen Rechner aufzeichnet, bricht diese Aufzeichnung dabei vielleicht ab. Prüfen?");
    if (!m_desk.occupancy.ask(
            [&] { return m_desk.view.questions().yesNoDestructive(tr("Erreichbarkeit prüfen"), question); }))
        return;
    if (!mayAsk()) // any more
        return showRefusal();
    stop();
    m_toAsk = m_desk.view.tabHome()->recentAddresses();
    m_shownTimer.start(m_times.shown);
    askNext();
}

void BoxProbe::showRefusal()
{
    m_desk.view.showStatus(tr("Das geht nur, solange keine Box verbunden ist oder verbunden wird."));
}

void BoxProbe::stop()
{
    m_toAsk.clear();
    m_answerTimer.stop();
    m_shownTimer.stop();
    if (!std::exchange(m_asked, {}).isEmpty())
        m_connector.disconnectFromHost();
    m_desk.view.tabHome()->forgetBoxAnswers();
}

void BoxProbe::askNext()
{
    if (m_toAsk.isEmpty())
        return;
    m_asked = m_toAsk.takeFirst();
    m_answerTimer.start(m_times.answer);
    m_connector.connect(m_asked);
}

void BoxProbe::take(bool answers)
{
    if (m_asked.isEmpty())
        return;
    m_answerTimer.stop();
    m_desk.view.tabHome()->setBoxAnswer(std::exchange(m_asked, {}), answers);
    m_connector.disconnectFromHost();
    askNext();
}
