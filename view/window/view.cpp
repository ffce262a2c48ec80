#include "view/window/view.h"

#include "model/model.h"
#include "view/common/inputcommit.h"
#include "view/common/logging.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/sensors/tabsensors.h"
#include "view/terminal/tabdatalogger.h"
#include "view/terminal/tabterminal.h"
#include "view/window/windowparts.h"

#include <QAbstractButton>
#include <QAction>
#include <QCloseEvent>
#include <QTabWidget>

View::View(Model *model, std::unique_ptr<UserPrompts> prompts)
    : m_model(model)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d = std::make_unique<WindowParts>(this, model, std::move(prompts));
    m_pages = d->pages.pages();
    connect(d->actions.menu, &QAction::triggered, this, &View::menu);
    connect(m_pages.tabs, &QTabWidget::currentChanged, this, &View::onTabSelected);
    connect(model, &Model::appStateChanged, this, &View::onModel_appStateChanged);
    connect(model, &Model::projectChanged, this, &View::onModel_ProjectChanged);
    connect(model, &Model::dataChanged, this, &View::onModel_DataChanged);
    connect(model, &Model::viewDataChanged, this, &View::onModel_ViewDataChanged);
    d->readSettings();
    for (Actions action : {Actions::Connect, Actions::Calibrate, Actions::Recording})
        setActionState(action, ActionState::Normal);
    d->retranslate();
    updateView();
}

View::~View()
{
    qCDebug(lcView) << Q_FUNC_INFO;
}

// --- Questions and messages --------------------------------------------------------------------------------------

bool View::isAsking() const
{
    return d->questions.isAsking();
}

Questions &View::questions()
{
    return d->questions;
}

bool View::askToSave()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->questions.toSaveOrStay() != SaveAnswer::Discard;
}

bool View::askToQuit()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->questions.toQuit();
}

QMessageBox::StandardButton View::askToSaveAndQuit()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->questions.toSaveAndQuit();
}

bool View::askYesNo(const QString &title, const QString &text)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    return d->questions.yesNo(title, text);
}

bool View::askToClearData()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->questions.toClearData();
}

void View::showMessage(const QString &text, const QString &title)
{
    qCDebug(lcView) << Q_FUNC_INFO << title << text;
    d->questions.inform(title, text);
}

void View::showWarning(const QString &text, const QString &title)
{
    qCDebug(lcView) << Q_FUNC_INFO << title << text;
    d->questions.warn(title, text);
}

QString View::askOpenFile(const QString &title, const QString &filter)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    return d->questions.openFile(title, filter);
}

QString View::askSaveFile(const QString &title, const QString &filter)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    return d->questions.saveFile(title, filter);
}

QString View::askSaveFileWithSuffix(const QString &title, const QString &filter, const QString &suffix,
                                    Qt::CaseSensitivity sensitivity, const QString &overwriteTitle)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    return d->questions.saveFileWithSuffix(title, filter, suffix, sensitivity, overwriteTitle);
}

QString View::askFolder(const QString &title)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    return d->questions.folder(title);
}

std::optional<QString> View::askAddress(const QString &current)
{
    qCDebug(lcView) << Q_FUNC_INFO << current;
    return d->questions.address(current);
}

void View::setAddressValidator(std::function<bool(const QString &)> isValid)
{
    d->recent.setAddressValidator(isValid);
    d->questions.setAddressValidator(std::move(isValid));
}

// --- State shown -------------------------------------------------------------------------------------------------

void View::setActionState(Actions action, ActionState state)
{
    qCDebug(lcView).nospace() << Q_FUNC_INFO << " action=" << static_cast<int>(action)
                              << " state=" << static_cast<int>(state);
    d->actions.setState(action, state);
}

void View::setTabEnabled(int tab, bool enabled)
{
    qCDebug(lcView) << Q_FUNC_INFO << tab << enabled;
    d->pages.setEnabled(tab, enabled);
}

void View::setConnected(bool connected)
{
    qCDebug(lcView) << Q_FUNC_INFO << connected;
    d->link.showConnected(connected);
}

void View::setRecordingRunning(bool running)
{
    qCDebug(lcView) << Q_FUNC_INFO << running;
    d->link.showRecording(running);
}

void View::reset()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->showEmptyProject();
}

void View::showProgress(const QString &text)
{
    qCDebug(lcView) << Q_FUNC_INFO << text;
    d->link.showProgress(text);
}

void View::hideProgress()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->link.hideProgress();
}

bool View::isProgressShown() const
{
    return d->link.isProgressShown();
}

void View::showStatus(const QString &text, int milliseconds)
{
    qCDebug(lcView) << Q_FUNC_INFO << text;
    d->status.showMessage(text, milliseconds);
}

void View::addStatusWidget(QWidget *widget)
{
    d->status.addWidget(widget);
}

void View::setDeviceAddress(const QString &address)
{
    qCDebug(lcView) << Q_FUNC_INFO << address;
    d->link.showAddress(address);
}

void View::setDemoState(DemoState state)
{
    qCDebug(lcView) << Q_FUNC_INFO << static_cast<int>(state);
    d->link.showDemo(state);
}

void View::rememberProject(const QString &file)
{
    qCDebug(lcView) << Q_FUNC_INFO << file;
    d->recent.rememberProject(file);
}

void View::rememberAddress(const QString &address)
{
    qCDebug(lcView) << Q_FUNC_INFO << address;
    d->recent.rememberAddress(address);
}

void View::showAbout()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->showAbout();
}

void View::writeSettings()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->memory.write();
}

void View::commitInput()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    commitInputOf(this);
}

// --- For every line; not logged ----------------------------------------------------------------------------------

void View::showLiveValues(const std::array<double, kNumSensors> &values, int period)
{
    m_pages.sensors->addSample(values, period);
}

void View::forgetLiveValues()
{
    m_pages.sensors->forgetLiveValues();
}

void View::terminalReceived(const QString &line)
{
    m_pages.terminal->addReceived(line);
}

void View::terminalSent(const QString &line)
{
    m_pages.terminal->addSent(line);
}

void View::logSample(double seconds, const std::array<double, kNumSensors> &values)
{
    m_pages.logger->addSample(seconds, values);
}

// --- Slots -------------------------------------------------------------------------------------------------------

void View::updateView()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->display.refreshAll();
}

void View::onModel_appStateChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    setConnected(m_model->isConnected());
}

void View::onModel_ProjectChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->display.noteProjectChange();
}

void View::onModel_DataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->display.noteDataChange();
}

void View::onModel_ViewDataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->status.refreshFile(); // a file was opened; the oscilloscope tab follows by itself
}

void View::onTabSelected(int index)
{
    qCDebug(lcView) << Q_FUNC_INFO << index;
    d->display.refreshData();
}

void View::resetCorrection()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    m_model->resetOffsets();
    m_model->setProjectModifiedFlag(true);
}

void View::menu()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->toolBar.popUpMenu();
}

void View::buttonLockPressed()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (auto *lock = m_pages.oszi->findChild<QAbstractButton *>(QStringLiteral("lockButton")))
        lock->click();
}

void View::languageChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->retranslate();
}

void View::deleteImage(int index, const char *function)
{
    qCDebug(lcView) << function;
    m_model->setImage(index, QPixmap());
    m_model->setProjectModifiedFlag(true);
}

// --- Events ------------------------------------------------------------------------------------------------------

void View::closeEvent(QCloseEvent *event)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    event->ignore(); // whether the program ends is decided by who handles quit()
    emit quit();
}

void View::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        languageChanged();
    QMainWindow::changeEvent(event);
}
