#include "model/model.h"
#include "plots/common/logging.h"
#include "plots/evaluation/common/scrolledplot.h"
#include "plots/evaluation/runtime/tabevaluationruntime.h"
#include "plots/oscilloscope/osziwidget.h"

#include <algorithm>
#include <limits>

namespace {

constexpr Qt::GlobalColor kStartColor = Qt::darkGreen;
constexpr Qt::GlobalColor kStopColor = Qt::red;

int markerPosition(int index, int clock)
{
    constexpr qint64 kLatest = std::numeric_limits<int>::max();
    return index < 0 ? -1 : static_cast<int>(std::min(qint64(index) * clock, kLatest));
}

} // namespace

int TabEvaluationRuntime::shownShot() const
{
    if (!model())
        return -1;
    const int count = model()->numChannels(m_currentSensor);
    return m_chosenShot >= 0 && m_chosenShot < count ? m_chosenShot : count - 1;
}

// True if the copy is of another list than before. A list that only grew is copied from where the copy ends.
bool TabEvaluationRuntime::copyShownShot()
{
    const int shot = shownShot();
    const SampleList *samples = model()->measurement(m_currentSensor, shot);
    const quint64 revision = model()->structureRevision();
    const bool isSame = m_shown.sensor == m_currentSensor && m_shown.shot == shot && m_shown.revision == revision
                        && samples && samples->size() >= m_shown.samples.size();
    if (!isSame)
        m_shown = {m_currentSensor, shot, revision, SampleList(), std::nullopt};
    for (int i = m_shown.samples.size(); samples && i < samples->size(); ++i) {
        const double value = samples->at(i);
        const auto range = m_shown.range.value_or(std::pair(value, value));
        m_shown.range = std::pair(std::min(range.first, value), std::max(range.second, value));
        m_shown.samples.append(value);
    }
    return !isSame;
}

void TabEvaluationRuntime::updateOszi()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!hasModel(Q_FUNC_INFO))
        return;
    const bool isOther = copyShownShot();
    const QColor color = model()->color(m_currentSensor);
    const bool hasShot = m_shown.shot >= 0;
    m_osziWidget->setHighlightColor(color);
    m_osziWidget->highlightSingle(hasShot ? 0 : -1);
    m_osziWidget->setOffset(model()->offset(m_currentSensor));
    m_osziWidget->setClock(model()->clock());
    if (isOther) {
        m_osziWidget->hideMouseMarker();
        m_osziWidget->setCurve(0, hasShot ? &m_shown.samples : nullptr, color, hasShot);
    }
    showThresholdLines();
    fitValueRange();
    m_scrolledPlot->setLongest(std::max(m_longestCount, m_shown.samples.size()));
    m_osziWidget->samplesAppended();
}

// The table's result, unless the shot has grown since.
ShotRuntime TabEvaluationRuntime::shownRuntime() const
{
    const std::vector<ShotRuntime> &results = m_caches[static_cast<size_t>(m_currentSensor)].results();
    const auto shot = static_cast<size_t>(std::max(0, m_shown.shot));
    if (shot < results.size() && results[shot].count == m_shown.samples.size())
        return results[shot];
    return shotRuntime(m_shown.samples, criteria());
}

// Horizontal lines at the thresholds, and vertical ones where the shot was found to start and stop.
void TabEvaluationRuntime::showThresholdLines()
{
    const RuntimeCriteria levels = criteria();
    const ShotRuntime found = shownRuntime();
    const int clock = model()->clock();
    m_osziWidget->setHorizontalLine(0, levels.startThreshold, kStartColor);
    m_osziWidget->setHorizontalLine(1, levels.stopThreshold, kStopColor);
    m_osziWidget->setVerticalMarker(0, markerPosition(found.startIndex, clock), kStartColor);
    m_osziWidget->setVerticalMarker(1, markerPosition(found.stopIndex, clock), kStopColor);
}

// Curve and thresholds with a little room above and below.
void TabEvaluationRuntime::fitValueRange()
{
    constexpr double kSmallestSpan = 0.001;
    const RuntimeCriteria levels = criteria();
    double minimum = std::min(levels.startThreshold, levels.stopThreshold);
    double maximum = std::max(levels.startThreshold, levels.stopThreshold);
    if (m_shown.range) {
        minimum = std::min(minimum, m_shown.range->first + levels.offset);
        maximum = std::max(maximum, m_shown.range->second + levels.offset);
    }
    const double span = maximum - minimum;
    const double room = span > 0.0 ? std::max(kSmallestSpan, span / 20.0) : 1.0;
    m_scrolledPlot->setValueRange(minimum - room, maximum + room);
}
