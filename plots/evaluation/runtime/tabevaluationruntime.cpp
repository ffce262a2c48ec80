#include "plots/evaluation/runtime/tabevaluationruntime.h"

#include "model/model.h"
#include "plots/common/logging.h"
#include "plots/evaluation/common/sensorselection.h"
#include "plots/evaluation/runtime/runtimeboxplots.h"
#include "plots/evaluation/runtime/runtimeplot.h"
#include "plots/evaluation/runtime/runtimetable.h"
#include "plots/evaluation/runtime/thresholdfields.h"

#include <QModelIndex>
#include <QVBoxLayout>

#include <cmath>

namespace {

bool isSensor(int sensor)
{
    return sensor >= 0 && sensor < kNumSensors;
}

} // namespace

TabEvaluationRuntime::TabEvaluationRuntime(QWidget *parent)
    : ModelPage(parent)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    createLayout();
    connectWidgets();
}

void TabEvaluationRuntime::createLayout()
{
    // The tab key follows the order in which the parts are created.
    m_sensors = new SensorSelection(this);
    m_table = new RuntimeTable(this);
    m_plot = new RuntimePlot(this);
    m_thresholdFields = new ThresholdFields(this);
    m_boxPlots = new RuntimeBoxPlots(this);
    auto *right = new QVBoxLayout;
    right->setSpacing(0);
    right->addWidget(m_thresholdFields);
    right->addWidget(m_boxPlots);
    right->addStretch();
    auto *middle = new QHBoxLayout;
    middle->addWidget(m_table, 3);
    middle->addLayout(right, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_sensors);
    layout->addLayout(middle, 1);
    layout->addWidget(m_plot, 1);
}

void TabEvaluationRuntime::connectWidgets()
{
    connect(m_sensors, &SensorSelection::sensorChanged, this, &TabEvaluationRuntime::onSensorButtonToggled);
    connect(m_thresholdFields, &ThresholdFields::edited, this, &TabEvaluationRuntime::onStartStopSpinBoxChanged);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TabEvaluationRuntime::onCurrentRowChanged);
    connect(m_table, &QTableView::clicked, this, &TabEvaluationRuntime::onTable_clicked);
}

void TabEvaluationRuntime::setModel(Model *model)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model) {
        qCDebug(lcPlots) << "ERROR: model is not set!  (model==nullptr)!";
        return;
    }
    follow(model);
    m_caches.fill(RuntimeCache());
    m_plot->forgetShot();
    m_chosenShot = -1;
    update();
}

bool TabEvaluationRuntime::hasModel(const char *function) const
{
    if (model())
        return true;
    qCDebug(lcPlots).noquote().nospace()
        << function << " ERROR: model is not set!  (model==nullptr)!  -> set model before calling this!";
    return false;
}

int TabEvaluationRuntime::currentSensor() const
{
    return m_sensors->sensor();
}

double TabEvaluationRuntime::startThreshold(int sensor) const
{
    return isSensor(sensor) ? m_thresholds[static_cast<size_t>(sensor)].start : 0.0;
}

double TabEvaluationRuntime::stopThreshold(int sensor) const
{
    return isSensor(sensor) ? m_thresholds[static_cast<size_t>(sensor)].stop : 0.0;
}

void TabEvaluationRuntime::setThresholds(int sensor, double start, double stop)
{
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " sensor=" << sensor << " start=" << start
                                         << " stop=" << stop;
    if (!isSensor(sensor) || !std::isfinite(start) || !std::isfinite(stop))
        return;
    // Bounded here, too, as other sensors' thresholds are not in the fields.
    m_thresholds[static_cast<size_t>(sensor)] = ThresholdFields::bounded({start, stop});
    if (sensor != m_currentSensor)
        return;
    m_thresholdFields->setThresholds(currentThresholds());
    if (model())
        scheduleRefresh();
}

RuntimeCriteria TabEvaluationRuntime::criteria() const
{
    const RuntimeThresholds &thresholds = m_thresholds[static_cast<size_t>(m_currentSensor)];
    return {model() ? model()->offset(m_currentSensor) : 0.0, thresholds.start, thresholds.stop};
}

// --- Following the model ---------------------------------------------------------------------------------------------

// Also while the page is hidden: the caches would keep the samples of removed shots in memory.
void TabEvaluationRuntime::structureChanged()
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        m_caches[static_cast<size_t>(sensor)].releaseRemoved(shotsOf(sensor));
}

void TabEvaluationRuntime::update()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!hasModel(Q_FUNC_INFO))
        return;
    refreshNow();
}

void TabEvaluationRuntime::refresh()
{
    updateTable();
    updateOszi();
}

// --- Table, box plots and plot ---------------------------------------------------------------------------------------

RuntimeCache::Shots TabEvaluationRuntime::shotsOf(int sensor) const
{
    const int count = model()->numChannels(sensor);
    RuntimeCache::Shots shots;
    shots.reserve(static_cast<size_t>(count));
    for (int shot = 0; shot < count; ++shot)
        shots.push_back(model()->measurement(sensor, shot));
    return shots;
}

void TabEvaluationRuntime::updateTable()
{
    if (!hasModel(Q_FUNC_INFO))
        return;
    RuntimeCache &cache = m_caches[static_cast<size_t>(m_currentSensor)];
    const RuntimeCache::Work work = cache.refresh(shotsOf(m_currentSensor), criteria(), model()->structureRevision());
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " shots=" << cache.results().size()
                                         << " scanned=" << work.scanned << " extended=" << work.extended;
    m_table->showResults(*model(), cache.results());
    m_boxPlots->set(runtimeSummary(cache.results()));
    if (m_chosenShot >= m_table->numShots()) { // the chosen shot was removed
        m_chosenShot = -1;
        m_table->forgetChoice();
    }
}

int TabEvaluationRuntime::shownShot() const
{
    if (!model())
        return -1;
    const int count = model()->numChannels(m_currentSensor);
    return m_chosenShot >= 0 && m_chosenShot < count ? m_chosenShot : count - 1;
}

void TabEvaluationRuntime::updateOszi()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!hasModel(Q_FUNC_INFO))
        return;
    m_plot->showShot(*model(), m_currentSensor, shownShot(), criteria(),
                     m_caches[static_cast<size_t>(m_currentSensor)].results());
}

// --- What the user does ----------------------------------------------------------------------------------------------

void TabEvaluationRuntime::onCurrentRowChanged(const QModelIndex &current, const QModelIndex &previous)
{
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " row=" << current.row() << " previous=" << previous.row();
    chooseShot(current.row());
}

void TabEvaluationRuntime::onTable_clicked(const QModelIndex &index)
{
    onCellClicked(index.row(), index.column());
}

void TabEvaluationRuntime::onCellClicked(int row, int column)
{
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " row=" << row << "  col=" << column;
    chooseShot(row);
}

void TabEvaluationRuntime::chooseShot(int row)
{
    if (!hasModel(Q_FUNC_INFO) || row < 0 || row >= model()->numChannels(m_currentSensor) || row == m_chosenShot)
        return;
    m_chosenShot = row;
    updateOszi();
}

void TabEvaluationRuntime::logThresholds(const char *function, const char *mark, int sensor) const
{
    qCDebug(lcPlots).noquote().nospace() << function << " " << mark << "currentSensor=" << sensor;
    for (size_t i = 0; i < m_thresholds.size(); ++i)
        qCDebug(lcPlots).noquote().nospace() << mark << "stopvalue " << i << " =" << m_thresholds[i].stop;
}

void TabEvaluationRuntime::onSensorButtonToggled()
{
    logThresholds(Q_FUNC_INFO, "", m_currentSensor);
    const bool isOther = currentSensor() != m_currentSensor; // both the old and the new button report the switch
    m_currentSensor = currentSensor();
    logThresholds(Q_FUNC_INFO, "*", m_currentSensor);
    if (!isOther)
        return;
    m_thresholdFields->setThresholds(currentThresholds());
    if (hasModel(Q_FUNC_INFO))
        refresh();
}

void TabEvaluationRuntime::onStartStopSpinBoxChanged()
{
    const RuntimeThresholds thresholds = m_thresholdFields->thresholds();
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " start=" << thresholds.start << " stop=" << thresholds.stop;
    currentThresholds() = thresholds;
    if (hasModel(Q_FUNC_INFO))
        refresh();
    emit thresholdsChanged();
}
