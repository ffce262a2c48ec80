#include "model/model.h"
#include "plots/logging.h"
#include "plots/osziwidget.h"
#include "plots/tabevaluationruntime.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>
#include <limits>

namespace {

constexpr int kWidestSample = 10; // pixels
constexpr int kUsualCount = 200;  // samples that the time axis has room for while there are none
constexpr Qt::GlobalColor kStartColor = Qt::darkGreen;
constexpr Qt::GlobalColor kStopColor = Qt::red;

int markerPosition(int index, int clock)
{
    constexpr qint64 kLatest = std::numeric_limits<int>::max();
    return index < 0 ? -1 : static_cast<int>(std::min(qint64(index) * clock, kLatest));
}

void setValueRange(OsziWidget &plot, double minimum, double maximum)
{
    if (minimum == plot.minValue() && maximum == plot.maxValue())
        return;
    // Each end must be moved while the other leaves room for it.
    if (maximum > plot.maxValue()) {
        plot.setMaxValue(maximum);
        plot.setMinValue(minimum);
    } else {
        plot.setMinValue(minimum);
        plot.setMaxValue(maximum);
    }
}

} // namespace

int TabEvaluationRuntime::shownShot() const
{
    if (!m_model)
        return -1;
    const int count = m_model->numChannels(m_currentSensor);
    return m_chosenShot >= 0 && m_chosenShot < count ? m_chosenShot : count - 1;
}

// True if the copy is of another list than before. A list that only grew is copied from where the copy ends.
bool TabEvaluationRuntime::copyShownShot()
{
    const int shot = shownShot();
    const SampleList *samples = m_model->measurement(m_currentSensor, shot);
    const quint64 revision = m_model->structureRevision();
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
    const QColor color = m_model->color(m_currentSensor);
    const bool hasShot = m_shown.shot >= 0;
    m_osziWidget->setHighlightColor(color);
    m_osziWidget->highlightSingle(hasShot ? 0 : -1);
    m_osziWidget->setOffset(m_model->offset(m_currentSensor));
    m_osziWidget->setClock(m_model->clock());
    if (isOther) {
        m_osziWidget->hideMouseMarker();
        m_osziWidget->setCurve(0, hasShot ? &m_shown.samples : nullptr, color, hasShot);
    }
    showThresholdLines();
    fitValueRange();
    fitTimeAxis();
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
    const int clock = m_model->clock();
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
    setValueRange(*m_osziWidget, minimum - room, maximum + room);
}

// The longest shot fills the width, so that shots can be compared by eye; longer ones than fit are scrolled.
void TabEvaluationRuntime::fitTimeAxis()
{
    const int width = m_osziWidget->contentsRect().width() - OsziWidget::kLeftMargin;
    const int longest = std::max(m_longestCount, m_shown.samples.size());
    const int count = longest > 0 ? longest : kUsualCount;
    const int zoom = std::clamp(width / count, 1, kWidestSample);
    const int hidden = std::max(0, count - std::max(0, width) / zoom);
    if (zoom != m_osziWidget->zoom())
        m_osziWidget->setZoom(zoom);
    m_timeScrollBar->setRange(0, hidden);
    m_timeScrollBar->setPageStep(std::max(1, count - hidden));
    m_timeScrollBar->setSingleStep(std::max(1, m_timeScrollBar->pageStep() / 10));
    m_timeScrollBar->setVisible(hidden > 0);
}

bool TabEvaluationRuntime::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_osziWidget && event->type() == QEvent::Resize)
        fitTimeAxis();
    return QWidget::eventFilter(watched, event);
}
