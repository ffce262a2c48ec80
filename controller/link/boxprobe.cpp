#include "controller/link/boxprobe.h"

#include "controller/link/boxlink.h"
#include "controller/occupancy.h"
#include "model/model.h"
#include "view/home/tabhome.h"
#include "view/window/view.h"

#include <QEvent>

#include <utility>

BoxProbe::BoxProbe(const Desk &desk, const BoxLink &link, quint16 port, Times times)
    : m_desk(desk)
    , m_link(link)
    , m_connector(port)
    , m_times(times)
{
    for (QTimer *timer : {&m_pauseTimer, &m_answerTimer})
        timer->setSingleShot(true);
    connect(&m_pauseTimer, &QTimer::timeout, this, &BoxProbe::beginRound);
    connect(&m_answerTimer, &QTimer::timeout, this, [this] { take(false); });
    connect(&m_connector, &MesotraConnector::connected, this, [this] { take(true); });
    connect(&m_connector, &MesotraConnector::error, this, [this] { take(false); });
    desk.view.tabHome()->installEventFilter(this);
}

BoxProbe::~BoxProbe()
{
    QObject::disconnect(&m_connector, nullptr, this, nullptr);
}

bool BoxProbe::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show)
        begin();
    else if (event->type() == QEvent::Hide)
        stop();
    return QObject::eventFilter(watched, event);
}

/// A box may serve its newest client only, so nobody is asked while a link is there or on its way.
bool BoxProbe::mayAsk() const
{
    return m_desk.view.tabHome()->isVisible() && !m_desk.view.isMinimized() && !m_link.isWanted()
           && !m_desk.model.isConnected() && !m_desk.view.isProgressShown() && !m_desk.occupancy.isOccupied();
}

void BoxProbe::begin()
{
    m_pauseTimer.start(0);
}

void BoxProbe::stop()
{
    m_toAsk.clear();
    m_answerTimer.stop();
    if (!std::exchange(m_asked, {}).isEmpty())
        m_connector.disconnectFromHost();
    m_desk.view.tabHome()->forgetBoxAnswers();
    m_pauseTimer.start(m_times.pause);
}

void BoxProbe::beginRound()
{
    m_toAsk = mayAsk() ? m_desk.view.tabHome()->recentAddresses() : QStringList();
    askNext();
}

void BoxProbe::askNext()
{
    if (m_toAsk.isEmpty() || !mayAsk()) {
        if (m_desk.view.tabHome()->isVisible())
            m_pauseTimer.start(m_times.pause);
        return;
    }
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
