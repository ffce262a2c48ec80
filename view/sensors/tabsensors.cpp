#include "view/sensors/tabsensors.h"

#include "kit/small/shadowframe.h"
#include "model/model.h"
#include "view/sensors/sensoreditor.h"
#include "view/sensors/sensorside.h"
#include "view/sensors/sensortreemodel.h"
#include "view/sensors/tilepage.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSplitter>

#include <utility>

namespace {

constexpr int kRepaintInterval = 50;   // ms: 20 times a second
constexpr int kStatusInterval = 250;   // ms: digits could not be read if they changed faster
constexpr int kDefaultSideWidth = 440; // pixels
constexpr int kNarrowestPage = 700;
constexpr int kHandleWidth = 8;
constexpr int kEdge = 12;

SensorValues::PerChannel lastRecorded(const Model &model)
{
    SensorValues::PerChannel values;
    for (int channel = 0; channel < kNumSensors; ++channel) {
        const SampleList *newest = model.measurement(channel, model.numChannels(channel) - 1);
        if (newest && !newest->isEmpty())
            values.at(static_cast<std::size_t>(channel)) = newest->constLast();
    }
    return values;
}

} // namespace

TabSensors::TabSensors(QWidget *parent)
    : QWidget(parent)
    , m_repaint(kRepaintInterval, Qt::PreciseTimer) // a coarse timer would fire early now and then
{
    m_statusTimer.setInterval(kStatusInterval);
    layOut();
    m_sensors = &m_side->sensors();
    m_editor = new SensorEditor(*m_sensors, m_choices, this);
    connectParts();
    showHint();
}

void TabSensors::layOut()
{
    m_splitter = new QSplitter(this);
    m_splitter->setObjectName(QStringLiteral("sensorSplitter"));
    m_splitter->setHandleWidth(kHandleWidth);
    m_splitter->setChildrenCollapsible(false);
    m_side = new SensorSide(m_splitter);
    m_splitter->addWidget(m_side);
    m_page = new TilePage(m_splitter);
    m_splitter->addWidget(m_page);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    auto *layout = new QHBoxLayout(this);
    // Less where the cards have their shadows.
    layout->setContentsMargins(kEdge, kEdge - ShadowFrame::kShadow, kEdge - ShadowFrame::kShadow,
                               kEdge - ShadowFrame::kShadow);
    layout->addWidget(m_splitter);
    const int kept = SensorChoices::treeWidth();
    const int width = kept >= SensorSide::kNarrowest ? kept : kDefaultSideWidth;
    m_splitter->setSizes({width, 3 * width});
}

void TabSensors::connectParts()
{
    connect(&m_repaint, &Throttle::due, this, &TabSensors::refreshTiles);
    connect(&m_statusTimer, &QTimer::timeout, this, &TabSensors::checkFreshness);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] {
        if (m_splitter->orientation() == Qt::Horizontal)
            SensorChoices::setTreeWidth(m_splitter->sizes().constFirst());
    });
    connect(m_sensors, &SensorTreeModel::shownChanged, this, [this](int sensor, bool shown) {
        m_choices.setShown(allSensors().at(sensor).key, shown);
        showTiles();
    });
    connect(m_sensors, &SensorTreeModel::renamed, m_editor, &SensorEditor::rename);
    connect(m_side, &SensorSide::editRequested, this, [this](int sensor) {
        if (m_model && !m_model->isBusy()) // the sensors may have changed by the time the dialog is closed
            m_editor->openDialog(sensor);
    });
    connect(m_side, &SensorSide::resetRequested, this, &TabSensors::resetHeld);
    connect(m_side, &SensorSide::resetAllRequested, this, [this] {
        m_values.resetAllHeld();
        refresh();
    });
    connect(m_page, &TilePage::kindChosen, this, [this](int sensor, DisplayKind kind) {
        m_choices.setKind(allSensors().at(sensor).key, kind);
        m_page->setKind(sensor, kind);
    });
    connect(m_page, &TilePage::resetRequested, this, &TabSensors::resetHeld);
    connect(m_page, &TilePage::enlargedChanged, m_side, &QWidget::setHidden);
    connect(m_editor, &SensorEditor::nameEdited, this, &TabSensors::sensorNameEdited);
    connect(m_editor, &SensorEditor::unitEdited, this, &TabSensors::sensorUnitEdited);
    connect(m_editor, &SensorEditor::colorEdited, this, &TabSensors::sensorColorEdited);
    connect(m_editor, &SensorEditor::limitsEdited, this, &TabSensors::sensorLimitsEdited);
}

void TabSensors::setModel(Model *model)
{
    m_model = model;
    m_editor->setModel(model);
    connect(model, &Model::appStateChanged, this, &TabSensors::followLink);
    updateDescription();
    updateValues();
}

void TabSensors::setTimeSource(std::function<qint64()> now)
{
    m_values.setTimeSource(std::move(now));
}

// --- Which sensors ---------------------------------------------------------------------------------------------

const QVector<SensorInfo> &TabSensors::allSensors() const
{
    return m_sensors->sensors().sensors;
}

void TabSensors::updateDescription()
{
    if (!m_model)
        return;
    const SensorList list = listSensors(*m_model);
    if (!(list == m_sensors->sensors()))
        showSensors(list);
}

void TabSensors::showSensors(const SensorList &list)
{
    m_sensors->setSensors(list);
    for (int i = 0; i < allSensors().size(); ++i) {
        const SensorInfo &sensor = allSensors().at(i);
        m_sensors->setShown(i, m_choices.isShown(sensor.key, sensor.channel >= 0));
    }
    showTiles();
    refresh();
}

void TabSensors::showTiles()
{
    QVector<TilePage::Content> contents;
    for (int i = 0; i < allSensors().size(); ++i) {
        const SensorInfo &sensor = allSensors().at(i);
        if (m_sensors->isShown(i))
            contents.append({i, sensor, m_choices.kind(sensor.key), m_values.reading(sensor)});
    }
    m_page->setTiles(contents);
    showHint();
}

void TabSensors::showHint()
{
    m_page->setHint(hintText());
}

QString TabSensors::hintText() const
{
    const bool isConnected = m_model && m_model->isConnected();
    if (allSensors().isEmpty() || !(m_sensors->sensors().isDescribed() || m_values.isAny() || isConnected))
        return tr("Noch keine Sensoren bekannt – bitte verbinden.");
    if (!m_page->hasTiles())
        return tr("Kein Sensor ausgewählt.\nLinks die Sensoren ankreuzen, die gezeigt werden sollen.");
    return {};
}

// --- Values ----------------------------------------------------------------------------------------------------

void TabSensors::addSample(const std::array<double, kNumSensors> &values, int period)
{
    const bool isFirst = !m_values.isLive();
    m_values.addSample(values, period);
    if (!isVisible())
        return;
    if (isFirst)
        showHint();
    scheduleTiles();
    if (!m_statusTimer.isActive()) { // the first value for some time is shown at once
        m_statusTimer.start();
        m_values.updateReadOut();
    }
}

void TabSensors::forgetLiveValues()
{
    m_values.forgetLive();
    updateValues();
    showHint();
    refresh();
}

void TabSensors::updateValues()
{
    if (!m_model || m_values.isLive() || !m_values.setRecorded(lastRecorded(*m_model)))
        return;
    showHint();
    refresh();
}

// What a link that is down sent last says nothing about now, however slow the box was.
void TabSensors::followLink()
{
    if (!m_model->isConnected() && m_values.isFresh()) {
        m_values.expire();
        refresh();
    }
    showHint();
}

// A minimised window is not repainted with every sample; it is brought up to date once the values are no longer fresh.
void TabSensors::scheduleTiles()
{
    if (!window()->isMinimized())
        m_repaint.request();
}

void TabSensors::refreshTiles()
{
    for (int i = 0; i < allSensors().size(); ++i) {
        if (m_sensors->isShown(i))
            m_page->setReading(i, m_values.reading(allSensors().at(i)));
    }
}

void TabSensors::refreshTree()
{
    for (int i = 0; i < allSensors().size(); ++i) {
        const SensorInfo &sensor = allSensors().at(i);
        const SensorReading reading = m_values.reading(sensor);
        const SensorScale scale = sensorScale(sensor.limits, reading.held);
        const QString text =
            reading.hasValue() ? sensorValueText(reading.readOut, scale.valueDecimals) : QStringLiteral("–");
        m_sensors->setReading(i, text, reading.status);
        m_page->describeReading(i);
    }
}

void TabSensors::refresh()
{
    m_values.updateReadOut();
    refreshTiles();
    refreshTree();
}

void TabSensors::checkFreshness()
{
    if (m_values.isFresh()) {
        m_values.updateReadOut();
        refreshTree();
        scheduleTiles();
        return;
    }
    m_statusTimer.stop();
    refresh();
}

void TabSensors::resetHeld(int sensor)
{
    m_values.resetHeld(allSensors().at(sensor).channel);
    refresh();
}

// --- Events ----------------------------------------------------------------------------------------------------

/// Side by side there must be room for the tree and one tile.
void TabSensors::fitToWidth(int width)
{
    const Qt::Orientation fitting = width < kNarrowestPage ? Qt::Vertical : Qt::Horizontal;
    if (m_splitter->orientation() == fitting)
        return;
    m_splitter->setOrientation(fitting);
    m_side->setMinimumWidth(fitting == Qt::Horizontal ? SensorSide::kNarrowest : 0);
}

void TabSensors::resizeEvent(QResizeEvent *event)
{
    fitToWidth(width());
    QWidget::resizeEvent(event);
}

void TabSensors::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showHint();
    refresh();
    if (m_values.isFresh())
        m_statusTimer.start();
}

void TabSensors::hideEvent(QHideEvent *event)
{
    m_repaint.cancel();
    m_statusTimer.stop();
    QWidget::hideEvent(event);
}

void TabSensors::keyPressEvent(QKeyEvent *event)
{
    const bool isTaken = event->key() == Qt::Key_Escape && m_page->shrink();
    if (!isTaken)
        QWidget::keyPressEvent(event);
}

void TabSensors::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        updateDescription(); // the texts for sensors without a name
        showHint();
        refresh();
    }
    QWidget::changeEvent(event);
}
