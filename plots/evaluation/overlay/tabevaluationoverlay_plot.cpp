#include "model/model.h"
#include "plots/evaluation/common/scrolledplot.h"
#include "plots/evaluation/overlay/overlayplot.h"
#include "plots/evaluation/overlay/tabevaluationoverlay.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTableView>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

constexpr QRgb kFaded = 0xffcdcdcd;

class ValueRange
{
public:
    void include(double low, double high)
    {
        m_range =
            m_range ? std::pair(std::min(m_range->first, low), std::max(m_range->second, high)) : std::pair(low, high);
    }
    // With a little room above and below.
    [[nodiscard]] std::pair<double, double> widened() const
    {
        constexpr double kSmallestRoom = 0.001;
        const auto [low, high] = m_range.value_or(std::pair(0.0, 0.0));
        const double room = high > low ? std::max(kSmallestRoom, (high - low) / 20.0) : 1.0;
        return {low - room, high + room};
    }

private:
    std::optional<std::pair<double, double>> m_range;
};

} // namespace

std::vector<bool> TabEvaluationOverlay::shownShots() const
{
    std::vector<bool> shown(m_shots.shots().size());
    for (size_t i = 0; i < shown.size(); ++i)
        shown[i] = m_shots.shots()[i]->isPlaced() && !lookOf(static_cast<int>(i)).isHidden;
    return shown;
}

void TabEvaluationOverlay::showPlot()
{
    const std::vector<bool> shown = shownShots();
    std::vector<bool> drawn = shown;
    const int reference = referenceShot();
    if (reference >= 0 && static_cast<size_t>(reference) < drawn.size())
        drawn[static_cast<size_t>(reference)] = true;
    m_shots.place(drawn);
    m_plot->setOffset(model()->offset(m_currentSensor));
    m_plot->setClock(model()->clock());
    showCurves(shown);
    showReference();
    showMean(shown);
    showLines();
    fitValueRange(drawn);
    m_scrolledPlot->setLongest(m_longest);
    m_plot->samplesAppended();
}

/// Chosen shots keep their colours and lie over the others, which fade.
void TabEvaluationOverlay::showCurves(const std::vector<bool> &isShown)
{
    std::vector<bool> chosen = selectedShots();
    for (size_t i = 0; i < chosen.size(); ++i)
        chosen[i] = chosen[i] && isShown[i];
    const bool anyChosen = std::find(chosen.begin(), chosen.end(), true) != chosen.end();
    std::vector<Slot> wanted;
    for (size_t i = 0; i < isShown.size(); ++i) {
        const OverlayShot &shot = *m_shots.shots()[i];
        const bool fades = anyChosen && !chosen[i];
        const QRgb color = fades ? kFaded : colorOf(static_cast<int>(i)).rgb();
        if (isShown[i])
            wanted.push_back({shot.id, &shot, color, !fades, shot.shift, shot.lift});
    }
    std::stable_partition(wanted.begin(), wanted.end(), [](const Slot &slot) { return !slot.isOnTop; });
    if (wanted.size() > OsziWidget::kNumSlots)
        wanted.erase(wanted.begin(), wanted.end() - OsziWidget::kNumSlots);
    setSlots(wanted);
    const int current = currentShot();
    const bool isThick = current >= 0 && chosen[static_cast<size_t>(current)];
    showHighlighted(isThick ? m_shots.shots()[static_cast<size_t>(current)]->id : 0);
}

/// Draws a shot thick, so that it can be read off with the mouse; an id of 0: none.
void TabEvaluationOverlay::showHighlighted(quint64 id)
{
    const auto slot = std::find_if(m_slots.begin(), m_slots.end(), [id](const Slot &s) { return s.id == id; });
    const int highlighted = slot == m_slots.end() ? -1 : static_cast<int>(slot - m_slots.begin());
    if (highlighted != m_plot->highlighted())
        m_plot->hideMouseMarker();
    if (highlighted >= 0)
        m_plot->setHighlightColor(QColor(slot->color));
    m_plot->highlightSingle(highlighted);
}

/// Tells the plot only what differs: every change makes it draw all its curves anew.
void TabEvaluationOverlay::setSlots(const std::vector<Slot> &wanted)
{
    const auto isSame = [](const Slot &a, const Slot &b) {
        return a.id == b.id && a.shot == b.shot && a.color == b.color && a.shift == b.shift && !(a.lift < b.lift)
               && !(a.lift > b.lift);
    };
    for (size_t i = 0; i < wanted.size(); ++i) {
        if (i < m_slots.size() && isSame(m_slots[i], wanted[i]))
            continue;
        const auto slot = static_cast<int>(i);
        m_plot->setCurve(slot, &wanted[i].shot->samples, QColor(wanted[i].color), true);
        m_plot->setCurvePlace(slot, wanted[i].shift, wanted[i].lift);
    }
    for (size_t i = wanted.size(); i < m_slots.size(); ++i)
        m_plot->setCurve(static_cast<int>(i), nullptr, Qt::black, false);
    m_slots = wanted;
}

void TabEvaluationOverlay::showReference()
{
    const OverlayShot *shot = m_shots.reference();
    if (shot && shot->isPlaced())
        m_plot->setReference({&shot->samples, shot->shift, shot->lift, colorOf(referenceShot())});
    else
        m_plot->setReference({});
}

void TabEvaluationOverlay::showMean(const std::vector<bool> &isShown)
{
    const bool shows = m_checkMean->isChecked() || m_checkBand->isChecked();
    const double sigmas = m_checkBand->isChecked() ? m_spinBoxSigmas->value() : 0.0;
    m_plot->setMean(shows ? &m_shots.meanOf(isShown) : nullptr, m_checkMean->isChecked(), sigmas);
}

/// What the shots are aligned by: a vertical line where they all stand, and the threshold that they cross there.
void TabEvaluationOverlay::showLines()
{
    const AlignmentRule aligned = rule();
    const qint64 time = qint64(m_shots.alignedIndex()) * model()->clock();
    const bool hasLine = aligned.by != AlignBy::Start && m_shots.alignedIndex() > 0;
    const qint64 latest = std::numeric_limits<int>::max();
    m_plot->setVerticalMarker(0, hasLine ? static_cast<int>(std::min(time, latest)) : -1, Qt::darkGreen);
    m_plot->setHorizontalLineCount(usesThreshold() ? 1 : 0);
    if (usesThreshold())
        m_plot->setHorizontalLine(0, aligned.threshold, Qt::darkGreen);
}

void TabEvaluationOverlay::fitValueRange(const std::vector<bool> &isDrawn)
{
    const AlignmentRule aligned = rule();
    ValueRange range;
    m_longest = 0;
    for (size_t i = 0; i < isDrawn.size(); ++i) {
        const OverlayShot &shot = *m_shots.shots()[i];
        if (!isDrawn[i] || !shot.isPlaced())
            continue;
        const double lift = shot.lift + aligned.offset;
        range.include(shot.lowest + lift, shot.highest + lift);
        m_longest = std::max(m_longest, shot.shift + shot.samples.size());
    }
    if (usesThreshold())
        range.include(aligned.threshold, aligned.threshold);
    if (const double sigmas = m_plot->bandSigmas(); sigmas > 0.0) {
        for (const MeanBand::Point &point : m_shots.meanOf(shownShots()).points()) {
            const double reach = sigmas * point.sigma();
            if (point.count > 0)
                range.include(point.mean + aligned.offset - reach, point.mean + aligned.offset + reach);
        }
    }
    const auto [minimum, maximum] = range.widened();
    m_scrolledPlot->setValueRange(minimum, maximum);
}
