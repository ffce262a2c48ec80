#include "plots/evaluation/runtime/runtimeplot.h"

#include "model/model.h"
#include "plots/evaluation/common/valuespan.h"
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

int longestCount(const std::vector<ShotRuntime> &results)
{
    int longest = 0;
    for (const ShotRuntime &result : results)
        longest = std::max(longest, result.count);
    return longest;
}

} // namespace

RuntimePlot::RuntimePlot(QWidget *parent)
    : RuntimePlot(new OsziWidget, parent)
{}

RuntimePlot::RuntimePlot(OsziWidget *osziWidget, QWidget *parent)
    : ScrolledPlot(osziWidget, parent)
    , m_osziWidget(osziWidget)
{
    osziWidget->setObjectName(QStringLiteral("osziWidget"));
    osziWidget->setMinimumHeight(140);
    osziWidget->setHorizontalLineCount(2);
    osziWidget->setVerticalMarkerCount(2);
}

void RuntimePlot::forgetShot()
{
    m_shown.sensor = -1;
}

// True if the copy is of another list than before. A list that only grew is copied from where the copy ends.
bool RuntimePlot::copySamples(const Model &model, int sensor, int shot)
{
    const SampleList *samples = model.measurement(sensor, shot);
    const quint64 revision = model.structureRevision();
    const bool isSame = m_shown.sensor == sensor && m_shown.shot == shot && m_shown.revision == revision && samples
                        && samples->size() >= m_shown.samples.size();
    if (!isSame)
        m_shown = {sensor, shot, revision, SampleList(), std::nullopt};
    for (int i = m_shown.samples.size(); samples && i < samples->size(); ++i) {
        const double value = samples->at(i);
        const auto range = m_shown.range.value_or(std::pair(value, value));
        m_shown.range = std::pair(std::min(range.first, value), std::max(range.second, value));
        m_shown.samples.append(value);
    }
    return !isSame;
}

void RuntimePlot::showShot(const Model &model, int sensor, int shot, const RuntimeCriteria &criteria,
                           const std::vector<ShotRuntime> &results)
{
    const bool isOther = copySamples(model, sensor, shot);
    const QColor color = model.color(sensor);
    const bool hasShot = m_shown.shot >= 0;
    m_osziWidget->setHighlightColor(color);
    m_osziWidget->highlightSingle(hasShot ? 0 : -1);
    m_osziWidget->setOffset(criteria.offset);
    m_osziWidget->setClock(model.clock());
    if (isOther) {
        m_osziWidget->hideMouseMarker(); // it would show a value of the curve before
        m_osziWidget->setCurve(0, hasShot ? &m_shown.samples : nullptr, color, hasShot);
    }
    showLines(criteria, shownRuntime(criteria, results), model.clock());
    fitValueRange(criteria);
    setLongest(std::max(longestCount(results), m_shown.samples.size()));
    m_osziWidget->samplesAppended();
}

// The table's result, unless the shot has grown since.
ShotRuntime RuntimePlot::shownRuntime(const RuntimeCriteria &criteria, const std::vector<ShotRuntime> &results) const
{
    const auto shot = static_cast<size_t>(std::max(0, m_shown.shot));
    if (shot < results.size() && results[shot].count == m_shown.samples.size())
        return results[shot];
    return shotRuntime(m_shown.samples, criteria);
}

void RuntimePlot::showLines(const RuntimeCriteria &criteria, const ShotRuntime &found, int clock)
{
    m_osziWidget->setHorizontalLine(0, criteria.startThreshold, kStartColor);
    m_osziWidget->setHorizontalLine(1, criteria.stopThreshold, kStopColor);
    m_osziWidget->setVerticalMarker(0, markerPosition(found.startIndex, clock), kStartColor);
    m_osziWidget->setVerticalMarker(1, markerPosition(found.stopIndex, clock), kStopColor);
}

// Curve and thresholds.
void RuntimePlot::fitValueRange(const RuntimeCriteria &criteria)
{
    ValueSpan span;
    span.include(criteria.startThreshold);
    span.include(criteria.stopThreshold);
    if (m_shown.range)
        span.include(m_shown.range->first + criteria.offset, m_shown.range->second + criteria.offset);
    const auto [minimum, maximum] = span.widened();
    setValueRange(minimum, maximum);
}
