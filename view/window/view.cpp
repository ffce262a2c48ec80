#include "view/window/view.h"

#include "app/theme.h"
#include "model/model.h"
#include "view/box/connectionprogress.h"
#include "view/common/logging.h"
#include "view/home/tabhome.h"
#include "view/sensors/tabsensors.h"
#include "view/terminal/tabdatalogger.h"
#include "view/terminal/tabterminal.h"
#include "view/window/sidetabs.h"
#include "view/window/viewprivate.h"

#include <QCloseEvent>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

View::View(Model *model, std::unique_ptr<UserPrompts> prompts)
    : d(std::make_unique<Private>(this, model, std::move(prompts)))
{
    qCDebug(lcView) << Q_FUNC_INFO;
    setWindowTitle(theme::applicationName);
    d->createWindow();
    d->connectActions();
    d->connectExports();
    d->connectTabs();
    d->connectLanguages();
    d->connectModel();
    d->readSettings();
    for (Actions action : {Actions::Connect, Actions::Calibrate, Actions::Recording})
        setActionState(action, ActionState::Normal);
    d->retranslate();
    updateView();
}

View::~View()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    // The widgets go after the private part: what they report on their way out must not reach it.
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->disconnect(this);
}

TabHome *View::tabHome() const
{
    return d->tabHome;
}

TabProject *View::tabProject() const
{
    return d->tabProject;
}

TabSensors *View::tabSensors() const
{
    return d->tabSensors;
}

TabOszilloscope *View::tabOszi() const
{
    return d->tabOszi;
}

TabEvaluation *View::tabEvaluation() const
{
    return d->tabEvaluation;
}

TabWebConfig *View::tabWebConfig() const
{
    return d->tabWebConfig;
}

TabDataLogger *View::tabLogger() const
{
    return d->tabLogger;
}

TabTerminal *View::tabTerminal() const
{
    return d->tabTerminal;
}

TabBlackBox *View::tabBlackBox() const
{
    return d->tabBlackBox;
}

QTabWidget *View::tabs() const
{
    return d->tabs;
}

void View::terminalReceived(const QString &line)
{
    d->tabTerminal->addReceived(line);
}

void View::terminalSent(const QString &line)
{
    d->tabTerminal->addSent(line);
}

void View::logSample(double seconds, const std::array<double, kNumSensors> &values)
{
    d->tabLogger->addSample(seconds, values);
}

void View::showLiveValues(const std::array<double, kNumSensors> &values, int period)
{
    d->tabSensors->addSample(values, period);
}

void View::forgetLiveValues()
{
    d->tabSensors->forgetLiveValues();
}

void View::showProgress(const QString &text)
{
    qCDebug(lcView) << Q_FUNC_INFO << text;
    d->progress->showText(text);
    d->tabHome->setConnecting(true);
}

void View::hideProgress()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->progress->hide();
    d->tabHome->setConnecting(false);
}

bool View::isProgressShown() const
{
    return !d->progress->isHidden();
}

void View::showStatus(const QString &text, int milliseconds)
{
    qCDebug(lcView) << Q_FUNC_INFO << text;
    statusBar()->showMessage(text, milliseconds);
    d->statusTimer.start(milliseconds > 0 ? milliseconds : 10000);
}

void View::addStatusWidget(QWidget *widget)
{
    statusBar()->insertPermanentWidget(0, widget);
}

void View::menu()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const QWidget *button = d->toolBar->widgetForAction(d->actions.menu);
    const QPoint corner = button->isVisible() ? button->mapToGlobal(QPoint(button->width(), button->height()))
                                              : mapToGlobal(d->toolBar->geometry().bottomRight());
    d->menu->popup(corner - QPoint(d->menu->sizeHint().width(), 0));
}

void View::languageChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->retranslate();
    d->refreshProject();
}

bool View::event(QEvent *event)
{
    // A tip under the moving pointer would wipe out what the program has to say.
    if (event->type() == QEvent::StatusTip && d->statusTimer.isActive())
        return true;
    return QMainWindow::event(event);
}

void View::closeEvent(QCloseEvent *event)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    event->ignore(); // whether the program ends is decided by who handles quit()
    emit quit();
}

void View::resizeEvent(QResizeEvent *event)
{
    constexpr int kNarrow = 900; // pixels; all buttons with their texts need a little less
    d->actions.setCompact(d->toolBar, event->size().width() < kNarrow);
    QMainWindow::resizeEvent(event);
}

void View::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        languageChanged();
    else if (event->type() == QEvent::WindowStateChange)
        d->noteNormalPlacement(static_cast<QWindowStateChangeEvent *>(event)->oldState());
    QMainWindow::changeEvent(event);
}
