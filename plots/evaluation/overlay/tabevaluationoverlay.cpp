#include "plots/evaluation/overlay/tabevaluationoverlay.h"

#include "model/edit/editscope.h"
#include "model/model.h"
#include "plots/common/logging.h"
#include "plots/evaluation/common/sensorselection.h"
#include "plots/evaluation/overlay/overlayoptions.h"
#include "plots/evaluation/overlay/overlayshotlist.h"
#include "plots/evaluation/overlay/overlaytable.h"
#include "plots/evaluation/overlay/overlaytablemodel.h"
#include "plots/evaluation/overlay/scrolledoverlay.h"

#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

TabEvaluationOverlay::TabEvaluationOverlay(QWidget *parent)
    : ModelPage(parent)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    createLayout();
    connectWidgets();
}

void TabEvaluationOverlay::createLayout()
{
    constexpr int kUsualTable = 572; // pixels that show all its columns
    // The tab key follows the order in which the parts are created.
    m_sensors = new SensorSelection(this);
    m_options = new OverlayOptions(this);
    m_table = new OverlayTable(this);
    m_list = new OverlayShotList(m_table, this);
    m_plot = new ScrolledOverlay(this);
    auto *splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(8);
    splitter->addWidget(m_list);
    splitter->addWidget(m_plot);
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kUsualTable, kUsualTable});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_sensors);
    layout->addWidget(m_options);
    layout->addWidget(splitter, 1);
}

void TabEvaluationOverlay::connectWidgets()
{
    connect(m_sensors, &SensorSelection::sensorChanged, this, &TabEvaluationOverlay::onSensorButtonToggled);
    connect(m_options, &OverlayOptions::alignmentChanged, this, &TabEvaluationOverlay::onOptions_alignmentChanged);
    connect(m_options, &OverlayOptions::meanChanged, this, &TabEvaluationOverlay::onOptions_meanChanged);
    connect(m_table, &OverlayTable::choiceChanged, this, &TabEvaluationOverlay::onTable_choiceChanged);
    connect(m_table, &OverlayTable::toggleWanted, this, &TabEvaluationOverlay::onTable_toggleWanted);
    connect(m_table, &OverlayTable::shownEdited, this, &TabEvaluationOverlay::onTable_shownEdited);
    connect(m_table, &OverlayTable::colorEdited, this, &TabEvaluationOverlay::onTable_colorEdited);
    connect(m_table, &OverlayTable::labelEdited, this, &TabEvaluationOverlay::onTable_labelEdited);
    connect(m_list, &OverlayShotList::allWanted, this, &TabEvaluationOverlay::onList_allWanted);
    connect(m_list, &OverlayShotList::referenceWanted, this, &TabEvaluationOverlay::onList_referenceWanted);
}

void TabEvaluationOverlay::setModel(Model *model)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model) {
        qCDebug(lcPlots) << "ERROR: model is not set!  (model==nullptr)!";
        return;
    }
    follow(model);
    m_looks.clear();
    forgetShots();
    update();
}

int TabEvaluationOverlay::currentSensor() const
{
    return m_sensors->sensor();
}

int TabEvaluationOverlay::referenceShot() const
{
    return m_looks.reference();
}

void TabEvaluationOverlay::setReferenceShot(int shot)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot;
    m_looks.setReference(shot);
    recompute();
}

// --- Following the model ---------------------------------------------------------------------------------------------

// Nothing else would free the samples of removed shots before the page is shown again.
void TabEvaluationOverlay::structureChanged()
{
    if (!isVisible())
        forgetShots();
}

void TabEvaluationOverlay::hideEvent(QHideEvent *event)
{
    ModelPage::hideEvent(event);
    if (isOutOfDate())
        forgetShots(); // some of them may have been removed
}

void TabEvaluationOverlay::update()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model()) {
        qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " ERROR: model is not set!  (model==nullptr)!";
        return;
    }
    refreshNow();
}

void TabEvaluationOverlay::refresh()
{
    recompute();
}

void TabEvaluationOverlay::recompute()
{
    if (!model())
        return;
    refreshShots();
    showRows();
    showPlot();
}

// --- Shots -----------------------------------------------------------------------------------------------------------

void TabEvaluationOverlay::forgetShots()
{
    m_plot->forgetShots(); // first: it points at them
    m_shots.clear();
}

// The id of its measurement of the first sensor that has one, so that what the user chose for a shot is the same for
// all sensors.
quint64 TabEvaluationOverlay::keyOf(int shot) const
{
    quint64 key = 0;
    for (int sensor = 0; sensor < kNumSensors && key == 0; ++sensor)
        key = model()->measurementId(sensor, shot);
    return key;
}

OverlayLooks::Keys TabEvaluationOverlay::readKeys() const
{
    int count = 0;
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        count = std::max(count, model()->numChannels(sensor));
    OverlayLooks::Keys keys(static_cast<size_t>(count));
    for (int shot = 0; shot < count; ++shot)
        keys[static_cast<size_t>(shot)] = keyOf(shot);
    return keys;
}

void TabEvaluationOverlay::refreshShots()
{
    const bool hasMoved = m_looks.setShots(readKeys());
    std::vector<OverlayShots::Source> sources(static_cast<size_t>(model()->numChannels(m_currentSensor)));
    for (size_t i = 0; i < sources.size(); ++i) {
        const auto shot = static_cast<int>(i);
        sources[i] = {model()->measurementId(m_currentSensor, shot), model()->measurement(m_currentSensor, shot)};
    }
    const int reference = m_looks.reference();
    const bool hasReference = reference >= 0 && static_cast<size_t>(reference) < sources.size();
    m_shots.refresh(sources, m_options->rule(*model()), hasReference ? sources[static_cast<size_t>(reference)].id : 0);
    if (hasMoved)
        m_table->forgetSelection(); // its rows are of other shots now
}

int TabEvaluationOverlay::currentShot() const
{
    const int shot = m_table->currentShot();
    return shot < numShots() ? shot : -1; // the table may not have its new rows yet
}

// --- What is shown ---------------------------------------------------------------------------------------------------

void TabEvaluationOverlay::showRows()
{
    std::vector<OverlayRow> rows(m_shots.shots().size());
    const int reference = m_looks.reference();
    for (size_t i = 0; i < rows.size(); ++i) {
        const auto shot = static_cast<int>(i);
        rows[i].color = m_looks.color(shot);
        rows[i].isShown = !m_looks.isHidden(shot);
        rows[i].isReference = shot == reference;
        rows[i].timestamp = model()->timestamp(shot);
        rows[i].label = model()->shotLabel(shot);
        rows[i].deviation = m_shots.shots()[i]->apart.largest;
    }
    m_table->setRows(std::move(rows));
    showStatus();
}

void TabEvaluationOverlay::showStatus()
{
    OverlayShotList::Status status;
    status.by = m_options->alignedBy();
    status.count = numShots();
    for (int shot = 0; shot < status.count; ++shot) {
        if (!m_looks.isHidden(shot))
            ++(m_shots.shots()[static_cast<size_t>(shot)]->isPlaced() ? status.shown : status.unplaced);
    }
    const int current = currentShot();
    status.hasCurrent = current >= 0;
    status.isReferenceCurrent = current >= 0 && current == m_looks.reference();
    m_list->showStatus(status);
}

void TabEvaluationOverlay::showPlot()
{
    OverlayScene scene;
    scene.rule = m_options->rule(*model());
    scene.clock = model()->clock();
    scene.selected = m_table->selectedShots(numShots());
    scene.current = currentShot();
    scene.showsMean = m_options->showsMean();
    scene.sigmas = m_options->sigmas();
    m_plot->showShots(m_shots, m_looks, scene);
}

// --- What the user does ----------------------------------------------------------------------------------------------

void TabEvaluationOverlay::onSensorButtonToggled()
{
    m_currentSensor = currentSensor();
    qCDebug(lcPlots) << Q_FUNC_INFO << "currentSensor=" << m_currentSensor;
    m_options->setSensor(m_currentSensor);
    recompute();
}

void TabEvaluationOverlay::onOptions_alignmentChanged()
{
    recompute();
}

void TabEvaluationOverlay::onOptions_meanChanged()
{
    if (model())
        showPlot();
}

void TabEvaluationOverlay::onTable_choiceChanged()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model())
        return;
    showStatus();
    showPlot();
}

void TabEvaluationOverlay::onTable_shownEdited(int shot, bool shown)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot << "shown=" << shown;
    m_looks.setHidden(shot, !shown);
    recompute();
}

void TabEvaluationOverlay::onTable_colorEdited(int shot, const QColor &color)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot << "color=" << color;
    m_looks.setColor(shot, color);
    recompute();
}

void TabEvaluationOverlay::onTable_labelEdited(int shot, const QString &label)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << "shot=" << shot << "label=" << label;
    if (!model())
        return;
    const EditScope edit(model(), [shot] { return tr("Bezeichnung von Messung %1").arg(shot + 1); });
    model()->setShotLabel(shot, label);
    model()->setProjectModifiedFlag(true);
    recompute();
}

// All selected rows get the opposite of what the current one was.
void TabEvaluationOverlay::onTable_toggleWanted()
{
    const int current = currentShot();
    if (current < 0)
        return;
    const bool hides = !m_looks.isHidden(current);
    std::vector<bool> selected = m_table->selectedShots(numShots());
    selected[static_cast<size_t>(current)] = true;
    for (size_t i = 0; i < selected.size(); ++i) {
        if (selected[i])
            m_looks.setHidden(static_cast<int>(i), hides);
    }
    recompute();
}

void TabEvaluationOverlay::onList_allWanted(bool shown)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << shown;
    for (int shot = 0; shot < numShots(); ++shot)
        m_looks.setHidden(shot, !shown);
    recompute();
}

void TabEvaluationOverlay::onList_referenceWanted()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    const int shot = currentShot();
    setReferenceShot(shot == referenceShot() ? -1 : shot);
}
