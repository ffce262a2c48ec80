#include "controller/logger/loggerlist.h"

#include "controller/link/boxlink.h"
#include "controller/logging.h"
#include "controller/occupancy.h"
#include "device/protocol/messages.h"
#include "view/blackbox/tabblackbox.h"
#include "view/window/view.h"

#include <utility>

namespace {

// How long the answer may take before the user may ask again, in ms.
constexpr int kTimeout = 5000;
// A block that never ends must not fill the memory.
constexpr int kMaxEntries = 100000;

} // namespace

LoggerList::LoggerList(const Desk &desk, BoxLink &link)
    : m_desk(desk)
    , m_link(link)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kTimeout);
    connect(&m_timer, &QTimer::timeout, this, [this] { setButtonEnabled(true); });
}

void LoggerList::request()
{
    if (!m_link.send(QStringLiteral("list\n")))
        return;
    setButtonEnabled(false); // the blocks of two answers could not be told apart
    m_timer.start();
}

void LoggerList::requestIfPossible()
{
    if (m_link.isConnected() && !m_desk.occupancy.isOccupied())
        request();
}

void LoggerList::begin()
{
    m_active = true;
}

void LoggerList::take(const QString &message)
{
    if (!m_active || isDirectoryItself(message))
        return;
    if (m_block.size() < kMaxEntries)
        m_block.append(message.simplified());
    else
        qCDebug(lcController) << "ERROR: list too long!";
}

void LoggerList::finish()
{
    m_desk.view.tabBlackBox()->setList(std::exchange(m_block, {}));
    m_timer.stop();
    setButtonEnabled(true);
    m_active = false;
}

void LoggerList::reset()
{
    m_active = false;
    m_block.clear();
    setButtonEnabled(true);
}

void LoggerList::show(const QString &box)
{
    if (!m_box.isEmpty() && m_box != box)
        m_desk.view.tabBlackBox()->forgetBox();
    m_box = box;
}

void LoggerList::forget()
{
    m_box.clear();
    m_desk.view.tabBlackBox()->forgetBox();
}

void LoggerList::setButtonEnabled(bool enabled)
{
    m_desk.view.tabBlackBox()->setListButtonEnabled(enabled);
}
