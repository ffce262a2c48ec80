#include "view/window/linkdisplay.h"

#include "app/theme.h"
#include "view/box/connectionprogress.h"
#include "view/box/tabwebconfig.h"
#include "view/home/tabhome.h"
#include "view/terminal/tabdatalogger.h"
#include "view/window/mainwindow.h"
#include "view/window/pagetable.h"
#include "view/window/statusdisplay.h"
#include "view/window/viewactions.h"

#include <QAction>

namespace {

QString titleText(bool connected)
{
    const QString title = theme::applicationName + QLatin1String(" - ") + theme::applicationVersion + QLatin1Char(' ')
                          + theme::secondVersion;
    return connected ? title : title + QLatin1String(" (disconnected)");
}

} // namespace

LinkDisplay::LinkDisplay(MainWindow *window, ViewActions &actions, const Pages &pages, StatusDisplay &status)
    : m_window(window)
    , m_actions(actions)
    , m_pages(pages)
    , m_status(status)
    , m_progress(new ConnectionProgress(window))
{
    connect(m_progress, &ConnectionProgress::cancelled, this, &LinkDisplay::cancelProgress);
    connect(actions.connectBox, &QAction::triggered, this, &LinkDisplay::connectOrCancel);
}

void LinkDisplay::showConnected(bool connected)
{
    m_actions.showLink(connected);
    const ActionState others = connected ? ActionState::Normal : ActionState::Disabled;
    m_window->setActionState(Actions::Connect, connected ? ActionState::Active : ActionState::Normal);
    m_window->setActionState(Actions::Calibrate, others);
    m_window->setActionState(Actions::Recording, others);
    // The last word: calibration and recording end up enabled, without a connection too.
    m_window->setRecordingRunning(false);
    m_window->setWindowTitle(titleText(connected));
    if (!connected)
        return;
    const QVector<int> opened = PageTable::openedByConnection();
    for (int page : opened)
        m_window->setTabEnabled(page, true);
}

void LinkDisplay::showRecording(bool running)
{
    const bool started = running && !m_isRecording;
    m_isRecording = running;
    m_window->setActionState(Actions::Recording, running ? ActionState::Active : ActionState::Normal);
    m_actions.showRecording(running); // after the state, which brings the icon of a recording that is not running
    m_window->setActionState(Actions::Calibrate, ActionState::Normal);
    m_pages.home->setRecording(running);
    if (started && m_pages.logger->isAnySensorChecked()) // each recording has its headline
        emit m_window->loggerHeadline();
}

void LinkDisplay::showDemo(DemoState state)
{
    m_status.showDemo(state == DemoState::Starting || state == DemoState::Running);
    m_pages.home->setDemoState(state);
}

void LinkDisplay::showAddress(const QString &address)
{
    m_pages.webConfig->setAddress(address);
    m_pages.home->setAddress(address);
}

// --- The attempt to connect --------------------------------------------------------------------------------------

void LinkDisplay::showProgress(const QString &text)
{
    m_progress->showText(text);
    m_pages.home->setConnecting(true);
}

void LinkDisplay::hideProgress()
{
    m_progress->hide();
    m_pages.home->setConnecting(false);
}

bool LinkDisplay::isProgressShown() const
{
    return !m_progress->isHidden();
}

void LinkDisplay::cancelProgress()
{
    m_window->hideProgress(); // by way of the window, which logs it
    emit m_window->progressCancelled();
}

void LinkDisplay::connectOrCancel()
{
    if (isProgressShown())
        cancelProgress();
    else
        emit m_window->connectDisconnect();
}
