#include "plots/evaluation/common/quantitycache.h"

#include <algorithm>

// Removals move figures to smaller indices; the order stays, so one pass over both finds all that are still valid.
void QuantityCache::alignTo(const Shots &shots)
{
    std::size_t kept = 0;
    for (std::size_t old = 0; old < m_ids.size() && kept < shots.size(); ++old) {
        if (m_ids[old] != shots[kept].id)
            continue;
        if (old != kept) {
            m_ids[kept] = m_ids[old];
            m_figures[kept] = m_figures[old];
        }
        ++kept;
    }
    m_ids.resize(kept);
    m_figures.resize(kept);
}

QuantityCache::Work QuantityCache::refresh(const Shots &shots, const MarkerIndices &markers)
{
    if (markers != m_markers) { // they divide the shot, so no figure is valid any longer
        m_ids.clear();
        m_figures.clear();
        m_markers = markers;
    }
    alignTo(shots);
    const std::size_t known = m_figures.size();
    m_ids.resize(shots.size());
    m_figures.resize(shots.size());
    Work work;
    for (std::size_t shot = 0; shot < shots.size(); ++shot) {
        m_ids[shot] = shots[shot].id;
        const QVector<double> &samples = *shots[shot].samples;
        if (shot < known && m_figures[shot].count == samples.size())
            continue;
        ++(shot < known ? work.extended : work.scanned);
        m_figures[shot].extend(samples, m_markers);
    }
    return work;
}
