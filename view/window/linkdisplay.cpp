#include "view/window/linkdisplay.h"

#include "app/theme.h"
#include "view/box/connectionprogress.h"
#include "view/box/tabwebconfig.h"
#include "view/home/tabhome.h"
#include "view/terminal/tabdatalogger.h"
#include "view/window/pagetable.h"
#include "view/window/statusdisplay.h"
#include "view/window/view.h"
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

LinkDisplay::LinkDisplay(View *view, ViewActions &actions, StatusDisplay &status)
    : m_view(view)
    , m_actions(actions)
    , m_status(status)
    , m_progress(new ConnectionProgress(view))
{
    connect(m_progress, &ConnectionProgress::cancelled, this, &LinkDisplay::cancelProgress);
    connect(actions.connectBox, &QAction::triggered, this, &LinkDisplay::connectOrCancel);
}

void LinkDisplay::showConnected(bool connected)
{
    m_actions.showLink(connected);
    const ActionState others = connected ? ActionState::Normal : ActionState::Disabled;
    m_view->setActionState(Actions::Connect, connected ? ActionState::Active : ActionState::Normal);
    m_view->setActionState(Actions::Calibrate, others);
    m_view->setActionState(Actions::Recording, others);
    // The last word: calibration and recording end up enabled, without a connection too.
    m_view->setRecordingRunning(false);
    m_view->setWindowTitle(titleText(connected));
    if (!connected)
        return;
    const QVector<int> opened = PageTable::openedByConnection();
    for (int page : opened)
        m_view->setTabEnabled(page, true);
}

void LinkDisplay::showRecording(bool running)
{
    const bool started = running && !m_isRecording;
    m_isRecording = running;
    m_view->setActionState(Actions::Recording, running ? ActionState::Active : ActionState::Normal);
    m_actions.showRecording(running); // after the state, which brings the icon of a recording that is not running
    m_view->setActionState(Actions::Calibrate, ActionState::Normal);
    m_view->tabHome()->setRecording(running);
    if (started && m_view->tabLogger()->isAnySensorChecked())
        emit m_view->loggerHeadline();
}

void LinkDisplay::showDemo(DemoState state)
{
    m_status.showDemo(state == DemoState::Starting || state == DemoState::Running);
    m_view->tabHome()->setDemoState(state);
}

void LinkDisplay::showAddress(const QString &address)
{
    m_view->tabWebConfig()->setAddress(address);
    m_view->tabHome()->setAddress(address);
}

// --- The attempt to connect --------------------------------------------------------------------------------------

void LinkDisplay::showProgress(const QString &text)
{
    m_progress->showText(text);
    m_view->tabHome()->setConnecting(true);
}

void LinkDisplay::hideProgress()
{
    m_progress->hide();
    m_view->tabHome()->setConnecting(false);
}

bool LinkDisplay::isProgressShown() const
{
    return !m_progress->isHidden();
}

void LinkDisplay::cancelProgress()
{
    m_view->hideProgress();
    emit m_view->progressCancelled();
}

void LinkDisplay::connectOrCancel()
{
    if (isProgressShown())
        cancelProgress();
    else
        emit m_view->connectDisconnect();
}
