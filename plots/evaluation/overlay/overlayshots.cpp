#include "plots/evaluation/overlay/overlayshots.h"

#include <algorithm>
#include <unordered_map>

void OverlayShots::clear()
{
    *this = OverlayShots();
}

const OverlayShot *OverlayShots::reference() const
{
    const auto found =
        std::find_if(m_shots.begin(), m_shots.end(), [this](const auto &shot) { return shot->id == m_reference; });
    return m_reference == 0 || found == m_shots.end() ? nullptr : found->get();
}

void OverlayShots::refresh(const std::vector<Source> &sources, const AlignmentRule &rule, quint64 reference)
{
    takeOver(sources);
    if (!(rule == m_rule)) {
        m_rule = rule;
        for (const auto &shot : m_shots) {
            shot->searched = 1;
            shot->aligned = -1;
            shot->apart = Deviation();
        }
    }
    for (size_t i = 0; i < m_shots.size(); ++i) {
        copySamples(*m_shots[i], sources[i], i + 1 == m_shots.size());
        findRange(*m_shots[i]);
        align(*m_shots[i]);
    }
    compareAll(reference);
}

// Keeps the shots that still exist.
void OverlayShots::takeOver(const std::vector<Source> &sources)
{
    const auto isSame = [](const auto &shot, const Source &source) { return shot->id == source.id; };
    if (std::equal(m_shots.begin(), m_shots.end(), sources.begin(), sources.end(), isSame))
        return;
    // Moved and not copied: the plot points at them.
    std::unordered_map<quint64, std::unique_ptr<OverlayShot>> known;
    for (auto &shot : m_shots)
        known.emplace(shot->id, std::move(shot));
    m_shots.clear();
    m_shots.reserve(sources.size());
    for (const Source &source : sources) {
        std::unique_ptr<OverlayShot> &shot = known[source.id];
        m_shots.push_back(shot ? std::move(shot) : std::make_unique<OverlayShot>());
        m_shots.back()->id = source.id;
    }
}

// Appending to a list that is shared copies all of it every time; so the one that is growing is not shared.
void OverlayShots::copySamples(OverlayShot &shot, const Source &source, bool mayGrow)
{
    const bool hasGrown = source.samples->size() != shot.samples.size();
    if (!mayGrow && (!shot.isShared || hasGrown)) {
        shot.samples = *source.samples;
        shot.isShared = true;
    } else if (mayGrow && hasGrown) {
        for (int i = shot.samples.size(); i < source.samples->size(); ++i)
            shot.samples.append(source.samples->at(i));
        shot.isShared = false;
    }
}

void OverlayShots::findRange(OverlayShot &shot)
{
    const int count = shot.samples.size();
    if (shot.ranged == count)
        return;
    const auto [lowest, highest] = std::minmax_element(shot.samples.cbegin() + shot.ranged, shot.samples.cend());
    shot.lowest = shot.ranged > 0 ? std::min(shot.lowest, *lowest) : *lowest;
    shot.highest = shot.ranged > 0 ? std::max(shot.highest, *highest) : *highest;
    shot.ranged = count;
}

void OverlayShots::align(OverlayShot &shot)
{
    if (shot.isPlaced())
        return;
    if (usesThreshold(m_rule.by))
        m_work += std::max(0, shot.samples.size() - shot.searched);
    shot.aligned = alignedSample(shot.samples, m_rule, shot.searched);
    shot.searched = std::max(1, shot.samples.size()); // a crossing needs the sample before
    shot.lift = alignedLift(shot.samples, m_rule, shot.aligned);
}

void OverlayShots::compareAll(quint64 reference)
{
    const bool isOther = reference != m_reference;
    m_reference = reference;
    const OverlayShot *other = this->reference();
    const bool canCompare = other && other->isPlaced();
    const AlignedCurve to = canCompare ? other->curve() : AlignedCurve();
    const bool hasMoved = to.samples != m_comparedTo.samples || to.aligned != m_comparedTo.aligned
                          || to.lift < m_comparedTo.lift || to.lift > m_comparedTo.lift;
    m_comparedTo = to;
    for (const auto &shot : m_shots) {
        if (isOther || hasMoved)
            shot->apart = Deviation();
        if (canCompare && shot->isPlaced())
            shot->apart = deviation(shot->curve(), to, shot->apart);
    }
}

void OverlayShots::place(const std::vector<bool> &isDrawn)
{
    m_alignedIndex = 0;
    for (size_t i = 0; i < m_shots.size(); ++i) {
        if (isDrawn[i])
            m_alignedIndex = std::max(m_alignedIndex, m_shots[i]->aligned);
    }
    for (const auto &shot : m_shots)
        shot->shift = shot->isPlaced() ? m_alignedIndex - shot->aligned : 0;
}

const MeanBand &OverlayShots::meanOf(const std::vector<bool> &isDrawn)
{
    std::vector<Averaged> wanted;
    std::vector<const OverlayShot *> shots;
    for (size_t i = 0; i < m_shots.size(); ++i) {
        const OverlayShot &shot = *m_shots[i];
        if (!isDrawn[i] || !shot.isPlaced())
            continue;
        wanted.push_back({shot.id, shot.shift, shot.lift, shot.samples.size()});
        shots.push_back(&shot);
    }
    const auto isSame = [](const Averaged &a, const Averaged &b) {
        return a.id == b.id && a.shift == b.shift && !(a.lift < b.lift) && !(a.lift > b.lift);
    };
    // While the same shots are drawn at the same places, only new samples are added to the mean.
    const bool goesOn = std::equal(wanted.begin(), wanted.end(), m_averaged.begin(), m_averaged.end(), isSame);
    if (!goesOn)
        m_mean.clear();
    for (size_t i = 0; i < shots.size(); ++i) {
        const int from = goesOn ? m_averaged[i].count : 0;
        m_mean.add(shots[i]->samples, from, wanted[i].shift, wanted[i].lift);
        m_work += wanted[i].count - from;
    }
    m_averaged = std::move(wanted);
    return m_mean;
}
