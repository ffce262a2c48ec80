#include "app/theme.h"
#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/tabwebconfig.h"
#include "view/common/actionicon.h"
#include "view/common/logging.h"
#include "view/home/tabhome.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"
#include "view/terminal/tabdatalogger.h"
#include "view/window/sidetabs.h"
#include "view/window/viewprivate.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QTextDocument>

#include <array>

namespace {

constexpr int kLongestFileText = 420;          // pixels
const QLatin1String kModifiedColor("#B45309"); // can be read on the bar's grey

QColor stateColor(ActionState state)
{
    // On the tool bar's dark grey: grey, white, green, red.
    static const std::array<QColor, 4> colors{theme::qColorMedium, theme::qColorBackground, QColor(0x7E, 0xE0, 0x81),
                                              QColor(0xFF, 0x8A, 0x80)};
    const auto index = static_cast<std::size_t>(state);
    return index < colors.size() ? colors[index] : theme::qColorMedium;
}

QString iconFile(Actions action)
{
    switch (action) {
    case Actions::Connect:
    case Actions::Disconnect:
        return QStringLiteral("wifi.png");
    case Actions::Calibrate:
        return QStringLiteral("adjust.png");
    case Actions::Recording:
        return QStringLiteral("play.png");
    }
    return {};
}

QString titleText(bool connected)
{
    const QString title = theme::applicationName + QLatin1String(" - ") + theme::applicationVersion + QLatin1Char(' ')
                          + theme::secondVersion;
    return connected ? title : title + QLatin1String(" (disconnected)");
}

/// What is written from right to left must not take along what follows it.
QString isolated(const QString &name)
{
    constexpr QChar kFromLeft(0x200E);
    constexpr QChar kIsolate(0x2068);
    constexpr QChar kEndOfIsolate(0x2069);
    return name.isRightToLeft() ? kFromLeft + QString(kIsolate) + name + kEndOfIsolate : name;
}

QStringList sensorNames(const SensorDescription &description)
{
    QStringList names;
    if (description.numSensorGroups() == 0)
        return names;
    const SensorGroup &group = description.sensorGroup(0);
    for (int i = 0; i < std::min(kNumSensors, group.numSensors()); ++i)
        names.append(group.sensorName(i));
    return names;
}

} // namespace

QAction *View::Private::action(Actions which) const
{
    switch (which) {
    case Actions::Connect:
    case Actions::Disconnect:
        return actions.connectBox;
    case Actions::Calibrate:
        return actions.calibrate;
    case Actions::Recording:
        return actions.startRecording;
    }
    return nullptr;
}

void View::setActionState(Actions action, ActionState state)
{
    qCDebug(lcView).nospace() << Q_FUNC_INFO << " action=" << static_cast<int>(action)
                              << " state=" << static_cast<int>(state);
    QAction *target = d->action(action);
    if (!target)
        return;
    target->setEnabled(state != ActionState::Disabled);
    target->setIcon(actionIcon(iconFile(action), stateColor(state)));
}

void View::setTabEnabled(int tab, bool enabled)
{
    qCDebug(lcView) << Q_FUNC_INFO << tab << enabled;
    if (tab >= 0 && tab < d->tabs->count())
        d->tabs->setTabEnabled(tab, enabled);
}

void View::setConnected(bool connected)
{
    qCDebug(lcView) << Q_FUNC_INFO << connected;
    d->showLink(connected);
    const ActionState others = connected ? ActionState::Normal : ActionState::Disabled;
    setActionState(Actions::Connect, connected ? ActionState::Active : ActionState::Normal);
    setActionState(Actions::Calibrate, others);
    setActionState(Actions::Recording, others);
    // The last word: calibration and recording end up enabled, without a connection too.
    setRecordingRunning(false);
    setWindowTitle(titleText(connected));
    if (!connected)
        return;
    setTabEnabled(2, true);
    setTabEnabled(3, true);
}

void View::Private::showLink(bool connected)
{
    link = connected ? Link::Connected : Link::NotConnected;
    actions.connectBox->setText(connected ? tr("&Trennen") : tr("&Verbinden"));
    actions.connectBox->setToolTip(connected ? tr("Mesotra Verbindung trennen.") : tr("Mit Mesotra verbinden."));
    actions.connectBox->setStatusTip(connected ? tr("Trennt die Verbindung zur Box")
                                               : tr("Verbindet mit der Mesotra Box"));
    actions.disconnectBox->setEnabled(connected);
}

void View::setRecordingRunning(bool running)
{
    qCDebug(lcView) << Q_FUNC_INFO << running;
    const bool started = running && !d->recording;
    d->recording = running;
    setActionState(Actions::Recording, running ? ActionState::Active : ActionState::Normal);
    if (running)
        d->actions.startRecording->setIcon(actionIcon(QStringLiteral("stop.png"), stateColor(ActionState::Active)));
    d->showRecordingTexts();
    setActionState(Actions::Calibrate, ActionState::Normal);
    d->tabHome->setRecording(running);
    if (started && d->tabLogger->isAnySensorChecked())
        emit loggerHeadline();
}

void View::Private::showRecordingTexts() const
{
    actions.startRecording->setText(recording ? tr("&Stop") : tr("&Start"));
    actions.startRecording->setToolTip(recording ? tr("Aufzeichnung beenden") : tr("Aufzeichnung starten"));
}

void View::reset()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    for (int i = 0; i < d->tabs->count(); ++i)
        setTabEnabled(i, true);
    setConnected(d->model->isConnected());
    d->tabOszi->clearDeletionField();
    d->tabLogger->clear();
    updateView();
}

void View::setDeviceAddress(const QString &address)
{
    qCDebug(lcView) << Q_FUNC_INFO << address;
    d->tabWebConfig->setAddress(address);
    d->tabHome->setAddress(address);
}

void View::updateView()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->tabProject->updateFromModel();
    d->refreshProject();
    d->tabOszi->onModel_projectChanged();
    d->tabOszi->onModel_dataChanged();
    d->refreshData();
}

void View::onModel_appStateChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    setConnected(d->model->isConnected());
}

void View::onModel_ProjectChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    // At once: an edit in between would write the fields of the project before into the model.
    d->tabProject->updateFromModel();
    if (d->projectPending)
        return;
    d->projectPending = true;
    d->projectTimer.start();
}

void View::onModel_DataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (d->dataPending)
        return;
    d->dataPending = true;
    d->dataTimer.start();
}

void View::onModel_ViewDataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->refreshFileLabel(); // a file was opened; the oscilloscope tab follows by itself
}

void View::onTabSelected(int index)
{
    qCDebug(lcView) << Q_FUNC_INFO << index;
    d->refreshData();
}

void View::Private::refreshData()
{
    dataTimer.stop();
    dataPending = false;
    const QWidget *shown = tabs->currentWidget();
    if (shown == tabHome)
        tabHome->updateFromModel();
    else if (shown == tabSensors)
        tabSensors->updateValues();
}

void View::Private::refreshProject()
{
    projectTimer.stop();
    projectPending = false;
    tabHome->updateFromModel();
    tabSensors->updateDescription();
    tabBlackBox->setImportedFiles(model->importedFiles());
    tabLogger->setSensorNames(sensorNames(model->sensorDescription()));
    refreshFileLabel();
}

void View::Private::refreshFileLabel()
{
    const QString file = model->currentFile();
    const QString project = model->projectData().name.simplified();
    const bool modified = model->isProjectModified();
    const QString name =
        file.isEmpty() ? (project.isEmpty() ? tr("Neues Projekt") : project) : QFileInfo(file).fileName();
    const QString state = modified ? tr("geändert") : file.isEmpty() ? QString() : tr("gespeichert");
    const QString mark = state.isEmpty() ? QString() : QStringLiteral(" – ") + state;
    const QFontMetrics metrics = fileLabel->fontMetrics();
    const int nameWidth = kLongestFileText - metrics.horizontalAdvance(mark);
    const QString text = isolated(metrics.elidedText(name, Qt::ElideMiddle, nameWidth)) + mark;
    const QString tip = file.isEmpty() ? QString() : Qt::convertFromPlainText(QDir::toNativeSeparators(file));
    if (text == fileLabel->text() && tip == fileLabel->toolTip())
        return;
    fileLabel->setText(text);
    fileLabel->setToolTip(tip); // a name may hold what looks like a tag
    // A bold type is wider; it comes with the text, so that the bar is laid out once.
    fileLabel->setStyleSheet(modified ? QStringLiteral("QLabel {font-weight: bold; color: %1;}").arg(kModifiedColor)
                                      : QString());
}

void View::commitInput()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    QPointer<QWidget> field = focusWidget();
    if (auto *box = qobject_cast<QAbstractSpinBox *>(field.data()))
        box->interpretText();
    if (!field || !field->hasFocus())
        return;
    // Fields, and editors in tables, take over their text when they lose the focus. The latter are gone then, and the
    // table is what the keys go on with.
    const QPointer<QWidget> table = field->parentWidget();
    field->clearFocus();
    if (QWidget *next = field && field->isVisible() ? field.data() : table.data())
        next->setFocus(Qt::OtherFocusReason);
}

void View::resetCorrection()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->model->resetOffsets();
    d->model->setProjectModifiedFlag(true);
}

void View::buttonLockPressed()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (auto *lock = d->tabOszi->findChild<QAbstractButton *>(QStringLiteral("lockButton")))
        lock->click();
}

void View::Private::deleteImage(int index)
{
    model->setImage(index, QPixmap());
    model->setProjectModifiedFlag(true);
}

void View::deleteImage0Confimed()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->deleteImage(0);
}

void View::deleteImage1Confimed()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->deleteImage(1);
}

void View::deleteImage2Confimed()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->deleteImage(2);
}

void View::deleteImage3Confimed()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->deleteImage(3);
}

void View::deleteImage4Confimed()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->deleteImage(4);
}
