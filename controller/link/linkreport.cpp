#include "controller/link/linkreport.h"

#include "controller/link/answerwatch.h"
#include "controller/link/boxlink.h"
#include "controller/link/continuation.h"
#include "controller/link/linkreason.h"
#include "controller/link/shotwatch.h"
#include "controller/link/silencewatch.h"
#include "controller/occupancy.h"
#include "device/demobox.h"
#include "device/mesotraconnector.h"
#include "model/model.h"
#include "view/window/state/stateline.h"
#include "view/window/view.h"

namespace {

constexpr int kInterval = 250; // ms between two looks

} // namespace

LinkReport::LinkReport(const Desk &desk, const Sources &sources)
    : m_desk(desk)
    , m_sources(sources)
    , m_line(new StateLine(&desk.view))
{
    m_clock.start();
    m_timer.setInterval(kInterval);
    connect(&m_timer, &QTimer::timeout, this, &LinkReport::refresh);
    connect(m_line, &StateLine::stopClicked, this, &LinkReport::stopRetrying);
    connect(m_line, &StateLine::acknowledged, this, &LinkReport::acknowledge);
    m_timer.start();
    refresh();
}

void LinkReport::noteLoss()
{
    if (!m_lostAt.isValid() || m_backAt.isValid())
        m_lostAt = QDateTime::currentDateTime(); // otherwise the box was not back in between
    m_backAt = {};
    refresh();
}

void LinkReport::noteBack()
{
    if (m_lostAt.isValid() && !m_backAt.isValid())
        m_backAt = QDateTime::currentDateTime();
    refresh();
}

void LinkReport::stopRetrying()
{
    if (!m_sources.link.reconnect().isActive() || m_desk.occupancy.refuseWhileOccupied())
        return;
    m_sources.link.leave();
    m_desk.view.showStatus(tr("Die Verbindung wird nicht mehr von selbst aufgebaut."));
}

void LinkReport::acknowledge()
{
    m_lostAt = {};
    m_backAt = {};
    m_sources.shot.forgetMissing();
    refresh();
}

void LinkReport::refresh()
{
    m_rate.note(m_clock.elapsed(), m_sources.shot.lines());
    m_line->showStatus(status());
}

LinkStatus::Link LinkReport::linkState() const
{
    if (m_desk.model.isConnected())
        return LinkStatus::Link::On;
    if (m_sources.link.reconnect().isActive())
        return LinkStatus::Link::Retrying;
    // Files that are fetched or copied show their progress in the same place.
    const bool isConnecting = m_desk.view.isProgressShown() && !m_desk.occupancy.isUnderWay(Task::Fetch);
    return isConnecting ? LinkStatus::Link::Connecting : LinkStatus::Link::Off;
}

LinkStatus LinkReport::status()
{
    LinkStatus status;
    status.link = linkState();
    status.box = m_sources.connector.hostAddress();
    status.isDemo = m_sources.demoBox.isActive();
    addRecording(status);
    addLoss(status);
    return status;
}

void LinkReport::addRecording(LinkStatus &status)
{
    status.recordingSince = m_sources.shot.since();
    status.samples = m_sources.shot.lines();
    status.shots = m_desk.model.numChannels(0);
    status.rate = m_rate.perSecond();
    status.staleFor = m_sources.silence.staleFor();
    status.isBoxMute = m_sources.answers.isBoxMute();
    status.missing = m_sources.shot.lastMissing();
}

void LinkReport::addLoss(LinkStatus &status)
{
    const Reconnect &reconnect = m_sources.link.reconnect();
    status.lostAt = m_lostAt;
    status.backAt = m_backAt;
    if (const auto error = reconnect.lastError())
        status.reason = linkReason(*error);
    status.nextAttempt = reconnect.attempts() + 1;
    status.timeToNext = reconnect.timeToNext();
    status.willContinue = m_sources.continuation.isWanted();
}
