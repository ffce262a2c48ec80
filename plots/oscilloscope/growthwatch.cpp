#include "plots/oscilloscope/growthwatch.h"

#include "plots/oscilloscope/curveslots.h"

#include <algorithm>
#include <utility>

namespace {

constexpr size_t kMostGrowing = 8; // slots that are looked at whenever samples arrive
constexpr int kSweepPeriod = 200;  // milliseconds

int countOf(const OsziCurve &curve)
{
    return curve.samples ? curve.samples->size() : 0;
}

} // namespace

GrowthWatch::GrowthWatch(const CurveSlots &curves, Grown grown)
    : m_curves(curves)
    , m_grown(std::move(grown))
    , m_knownCounts(curves.size(), 0)
    , m_sweep(kSweepPeriod)
{
    QObject::connect(&m_sweep, &Throttle::due, &m_sweep, [this] { lookAtAll(); });
}

void GrowthWatch::setKnown(int slot)
{
    const OsziCurve *curve = m_curves.find(slot);
    if (!curve)
        return;
    m_knownCounts[size_t(slot)] = countOf(*curve);
    if (curve->samples)
        m_topSlot = std::max(m_topSlot, slot);
}

void GrowthWatch::setAllKnown()
{
    std::transform(m_curves.begin(), m_curves.end(), m_knownCounts.begin(), countOf);
}

void GrowthWatch::forget()
{
    m_topSlot = -1;
    m_growingSlots.clear();
}

void GrowthWatch::look(int highlighted)
{
    for (const int slot : {highlighted, m_topSlot}) {
        if (std::find(m_growingSlots.begin(), m_growingSlots.end(), slot) == m_growingSlots.end())
            lookAt(slot);
    }
    // By index: looking at a slot may change the list.
    for (size_t i = 0; i < m_growingSlots.size(); ++i)
        lookAt(m_growingSlots[i]);
    m_sweep.request();
}

void GrowthWatch::lookAtAll()
{
    for (int slot = 0; slot <= m_topSlot; ++slot)
        lookAt(slot);
}

void GrowthWatch::lookAt(int slot)
{
    const OsziCurve *curve = m_curves.find(slot);
    if (!curve || !curve->samples)
        return;
    // Also remembers a list that became shorter, so that growing back counts as growth.
    const int oldCount = std::exchange(m_knownCounts[size_t(slot)], curve->samples->size());
    if (curve->samples->size() <= oldCount)
        return;
    if (std::find(m_growingSlots.begin(), m_growingSlots.end(), slot) == m_growingSlots.end()) {
        if (m_growingSlots.size() == kMostGrowing)
            m_growingSlots.erase(m_growingSlots.begin()); // the one that has been known longest
        m_growingSlots.push_back(slot);
    }
    m_grown(slot, oldCount);
}
