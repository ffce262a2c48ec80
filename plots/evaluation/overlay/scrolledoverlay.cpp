#include "plots/evaluation/overlay/scrolledoverlay.h"

#include "plots/evaluation/common/valuespan.h"
#include "plots/evaluation/overlay/overlaylooks.h"
#include "plots/evaluation/overlay/overlayplot.h"
#include "plots/evaluation/overlay/overlayshots.h"

#include <algorithm>
#include <limits>

namespace {

constexpr QRgb kFaded = 0xffcdcdcd;

std::vector<bool> shownShots(const OverlayShots &shots, const OverlayLooks &looks)
{
    std::vector<bool> shown(shots.shots().size());
    for (size_t i = 0; i < shown.size(); ++i)
        shown[i] = shots.shots()[i]->isPlaced() && !looks.isHidden(static_cast<int>(i));
    return shown;
}

} // namespace

ScrolledOverlay::ScrolledOverlay(QWidget *parent)
    : ScrolledOverlay(new OverlayPlot, parent)
{}

ScrolledOverlay::ScrolledOverlay(OverlayPlot *plot, QWidget *parent)
    : ScrolledPlot(plot, parent)
    , m_plot(plot)
{
    plot->setObjectName(QStringLiteral("osziWidget"));
    plot->setMinimumSize(300, 140);
    plot->setVerticalMarkerCount(1);
}

void ScrolledOverlay::forgetShots()
{
    setSlots({});
    m_plot->setReference({});
    m_plot->setMean(nullptr, false, 0.0);
}

void ScrolledOverlay::showShots(OverlayShots &shots, const OverlayLooks &looks, const OverlayScene &scene)
{
    const std::vector<bool> shown = shownShots(shots, looks);
    std::vector<bool> drawn = shown;
    const int reference = looks.reference(); // is drawn even if it is hidden
    if (reference >= 0 && static_cast<size_t>(reference) < drawn.size())
        drawn[static_cast<size_t>(reference)] = true;
    shots.place(drawn);
    m_plot->setOffset(scene.rule.offset);
    m_plot->setClock(scene.clock);
    showCurves(shots, looks, scene, shown);
    showReference(shots, looks);
    showMean(shots, scene, shown);
    showLines(shots, scene);
    fitAxes(shots, scene, shown, drawn);
    m_plot->samplesAppended();
}

// Selected shots keep their colours and are drawn over the others, which fade.
void ScrolledOverlay::showCurves(const OverlayShots &shots, const OverlayLooks &looks, const OverlayScene &scene,
                                 const std::vector<bool> &shown)
{
    std::vector<bool> chosen = scene.selected;
    for (size_t i = 0; i < chosen.size(); ++i)
        chosen[i] = chosen[i] && shown[i];
    const bool anyChosen = std::find(chosen.begin(), chosen.end(), true) != chosen.end();
    std::vector<Slot> wanted;
    for (size_t i = 0; i < shown.size(); ++i) {
        const OverlayShot &shot = *shots.shots()[i];
        const bool fades = anyChosen && !chosen[i];
        if (!shown[i])
            continue;
        const QRgb color = fades ? kFaded : looks.color(static_cast<int>(i)).rgb();
        wanted.push_back({shot.id, &shot, color, !fades, shot.shift, shot.lift});
    }
    std::stable_partition(wanted.begin(), wanted.end(), [](const Slot &slot) { return !slot.isOnTop; });
    if (wanted.size() > OsziWidget::kNumSlots)
        wanted.erase(wanted.begin(), wanted.end() - OsziWidget::kNumSlots);
    setSlots(wanted);
    const bool isThick = scene.current >= 0 && chosen[static_cast<size_t>(scene.current)];
    showHighlighted(isThick ? shots.shots()[static_cast<size_t>(scene.current)]->id : 0);
}

// The highlighted curve is drawn thick and is the one whose values the mouse reads; an id of 0: none.
void ScrolledOverlay::showHighlighted(quint64 id)
{
    const auto slot = std::find_if(m_slots.begin(), m_slots.end(), [id](const Slot &s) { return s.id == id; });
    const int highlighted = slot == m_slots.end() ? -1 : static_cast<int>(slot - m_slots.begin());
    if (highlighted != m_plot->highlighted())
        m_plot->hideMouseMarker();
    if (highlighted >= 0)
        m_plot->setHighlightColor(QColor(slot->color));
    m_plot->highlightSingle(highlighted);
}

// Tells the plot only what differs: after every change it draws all its curves again.
void ScrolledOverlay::setSlots(const std::vector<Slot> &wanted)
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

void ScrolledOverlay::showReference(const OverlayShots &shots, const OverlayLooks &looks)
{
    const OverlayShot *shot = shots.reference();
    if (shot && shot->isPlaced())
        m_plot->setReference({&shot->samples, shot->shift, shot->lift, looks.color(looks.reference())});
    else
        m_plot->setReference({});
}

void ScrolledOverlay::showMean(OverlayShots &shots, const OverlayScene &scene, const std::vector<bool> &shown)
{
    const bool needsMean = scene.showsMean || scene.sigmas > 0.0;
    m_plot->setMean(needsMean ? &shots.meanOf(shown) : nullptr, scene.showsMean, scene.sigmas);
}

// What the shots are lined up by: a vertical line through the aligned samples, and the threshold that they cross
/// there.
void ScrolledOverlay::showLines(const OverlayShots &shots, const OverlayScene &scene)
{
    const qint64 time = qint64(shots.alignedIndex()) * scene.clock;
    const bool hasLine = scene.rule.by != AlignBy::Start && shots.alignedIndex() > 0;
    const qint64 latest = std::numeric_limits<int>::max();
    m_plot->setVerticalMarker(0, hasLine ? static_cast<int>(std::min(time, latest)) : -1, Qt::darkGreen);
    const bool hasThreshold = usesThreshold(scene.rule.by);
    m_plot->setHorizontalLineCount(hasThreshold ? 1 : 0);
    if (hasThreshold)
        m_plot->setHorizontalLine(0, scene.rule.threshold, Qt::darkGreen);
}

// To curves, threshold and band.
void ScrolledOverlay::fitAxes(OverlayShots &shots, const OverlayScene &scene, const std::vector<bool> &shown,
                              const std::vector<bool> &drawn)
{
    const double offset = scene.rule.offset;
    ValueSpan span;
    int longest = 0;
    for (size_t i = 0; i < drawn.size(); ++i) {
        const OverlayShot &shot = *shots.shots()[i];
        if (!drawn[i] || !shot.isPlaced())
            continue;
        const double lift = shot.lift + offset;
        span.include(shot.lowest + lift, shot.highest + lift);
        longest = std::max(longest, shot.shift + shot.samples.size());
    }
    if (usesThreshold(scene.rule.by))
        span.include(scene.rule.threshold);
    if (scene.sigmas > 0.0) {
        for (const MeanBand::Point &point : shots.meanOf(shown).points()) {
            const double reach = scene.sigmas * point.sigma();
            if (point.count > 0)
                span.include(point.mean + offset - reach, point.mean + offset + reach);
        }
    }
    const auto [minimum, maximum] = span.widened();
    setValueRange(minimum, maximum);
    setLongest(longest);
}
