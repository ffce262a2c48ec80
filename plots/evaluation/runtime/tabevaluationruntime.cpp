#include "plots/evaluation/runtime/tabevaluationruntime.h"
#include "plots/evaluation/common/sensorselection.h"

#include "model/model.h"
#include "plots/charts/boxwhiskerswidget.h"
#include "plots/common/logging.h"
#include "plots/evaluation/runtime/runtimetablemodel.h"
#include "plots/oscilloscope/osziwidget.h"

#include <QDoubleSpinBox>
#include <QSignalBlocker>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace {

bool isSensor(int sensor)
{
    return sensor >= 0 && sensor < kNumSensors;
}

std::optional<qint64> pauseBetween(const QDateTime &from, const QDateTime &to)
{
    return from.isValid() && to.isValid() ? std::optional(from.secsTo(to)) : std::nullopt;
}

// Time stamps seldom change, and taking the difference of two local times is slow.
bool hasTimestamps(const std::vector<RuntimeRow> &rows, size_t first, const QDateTime &from, const QDateTime &to)
{
    return first + 1 < rows.size() && rows[first].timestamp == from && rows[first + 1].timestamp == to;
}

std::vector<RuntimeRow> rowsOf(const Model &model, const std::vector<ShotRuntime> &results,
                               const std::vector<RuntimeRow> &before)
{
    std::vector<RuntimeRow> rows;
    rows.reserve(results.size());
    for (const ShotRuntime &result : results)
        rows.push_back({result, model.timestamp(static_cast<int>(rows.size())), std::nullopt});
    for (size_t i = 0; i + 1 < rows.size(); ++i) {
        const QDateTime &from = rows[i].timestamp;
        const QDateTime &to = rows[i + 1].timestamp;
        rows[i].pause = hasTimestamps(before, i, from, to) ? before[i].pause : pauseBetween(from, to);
    }
    return rows;
}

} // namespace

TabEvaluationRuntime::TabEvaluationRuntime(QWidget *parent)
    : ModelPage(parent)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    createLayout();
    retranslateUi();
    connectWidgets();
}

TabEvaluationRuntime::~TabEvaluationRuntime() = default;

void TabEvaluationRuntime::setModel(Model *model)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!model) {
        qCDebug(lcPlots) << "ERROR: model is not set!  (model==nullptr)!";
        return;
    }
    follow(model);
    m_caches.fill(RuntimeCache());
    m_shown.sensor = -1;
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
    const auto bounded = [this](double value) {
        return std::clamp(value, m_spinBoxStartValue->minimum(), m_spinBoxStartValue->maximum());
    };
    m_thresholds[static_cast<size_t>(sensor)] = {bounded(start), bounded(stop)};
    if (sensor != m_currentSensor)
        return;
    showThresholds();
    if (model())
        scheduleRefresh();
}

RuntimeCriteria TabEvaluationRuntime::criteria() const
{
    const Thresholds &thresholds = m_thresholds[static_cast<size_t>(m_currentSensor)];
    return {model() ? model()->offset(m_currentSensor) : 0.0, thresholds.start, thresholds.stop};
}

// --- Following the model ---------------------------------------------------------------------------------------------

void TabEvaluationRuntime::structureChanged()
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        m_caches[static_cast<size_t>(sensor)].releaseRemoved(shotsOf(sensor));
}

void TabEvaluationRuntime::showEvent(QShowEvent *event)
{
    fitColumns(); // a page that was never shown has not been given its fonts before
    ModelPage::showEvent(event);
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
    m_sensors->showSensors(model());
    recompute();
}

void TabEvaluationRuntime::recompute()
{
    updateTable();
    updateOszi();
}

// --- Table and summaries ---------------------------------------------------------------------------------------------

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
    m_tableModel->setRows(rowsOf(*model(), cache.results(), m_tableModel->rows()));
    fitColumns();
    showSummaries(cache.results());
    if (m_chosenShot >= m_tableModel->numShots())
        followNewestShot();
}

void TabEvaluationRuntime::followNewestShot()
{
    m_chosenShot = -1;
    m_table->clearSelection();
    m_table->setCurrentIndex(QModelIndex());
}

void TabEvaluationRuntime::showSummaries(const std::vector<ShotRuntime> &results)
{
    QList<double> starts;
    QList<double> durations;
    QList<double> stops;
    double longest = 0.0;
    m_longestCount = 0;
    for (const ShotRuntime &result : results) {
        starts.append(result.startTime());
        if (result.hasDuration())
            durations.append(result.duration());
        stops.append(result.stopTime());
        longest = std::max(longest, result.totalTime());
        m_longestCount = std::max(m_longestCount, result.count);
    }
    for (BoxWhiskersWidget *summary : m_summaries)
        summary->setAxisRange(0.0, longest);
    m_summaries[0]->set(starts);
    m_summaries[1]->set(durations);
    m_summaries[2]->set(stops);
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
    showThresholds();
    if (hasModel(Q_FUNC_INFO))
        recompute();
}

void TabEvaluationRuntime::onStartStopSpinBoxChanged()
{
    const Thresholds thresholds{m_spinBoxStartValue->value(), m_spinBoxStopValue->value()};
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " start=" << thresholds.start << " stop=" << thresholds.stop;
    m_thresholds[static_cast<size_t>(m_currentSensor)] = thresholds;
    if (hasModel(Q_FUNC_INFO))
        recompute();
    emit thresholdsChanged();
}

void TabEvaluationRuntime::showThresholds()
{
    const QSignalBlocker startBlocker(m_spinBoxStartValue);
    const QSignalBlocker stopBlocker(m_spinBoxStopValue);
    const Thresholds &thresholds = m_thresholds[static_cast<size_t>(m_currentSensor)];
    m_spinBoxStartValue->setValue(thresholds.start);
    m_spinBoxStopValue->setValue(thresholds.stop);
}
