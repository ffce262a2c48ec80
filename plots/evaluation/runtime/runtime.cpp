#include "plots/evaluation/runtime/runtime.h"

#include <algorithm>

bool operator==(const RuntimeCriteria &a, const RuntimeCriteria &b)
{
    return a.offset == b.offset && a.startThreshold == b.startThreshold && a.stopThreshold == b.stopThreshold;
}

bool operator==(const ShotRuntime &a, const ShotRuntime &b)
{
    return a.startIndex == b.startIndex && a.stopIndex == b.stopIndex && a.count == b.count;
}

int firstBelow(const QVector<double> &samples, double offset, double threshold, int from)
{
    for (int i = std::max(0, from); i < samples.size(); ++i) {
        if (samples.at(i) + offset < threshold)
            return i;
    }
    return -1;
}

int lastBelow(const QVector<double> &samples, double offset, double threshold, int from)
{
    for (int i = samples.size() - 1; i >= std::max(0, from); --i) {
        if (samples.at(i) + offset < threshold)
            return i;
    }
    return -1;
}

ShotRuntime shotRuntime(const QVector<double> &samples, const RuntimeCriteria &criteria)
{
    return extendedRuntime(ShotRuntime(), samples, criteria);
}

ShotRuntime extendedRuntime(const ShotRuntime &before, const QVector<double> &samples, const RuntimeCriteria &criteria)
{
    ShotRuntime result = before;
    if (before.startIndex < 0)
        result.startIndex = firstBelow(samples, criteria.offset, criteria.startThreshold, before.count);
    const int stop = lastBelow(samples, criteria.offset, criteria.stopThreshold, before.count);
    if (stop >= 0)
        result.stopIndex = stop;
    result.count = samples.size();
    return result;
}

RuntimeSummary runtimeSummary(const std::vector<ShotRuntime> &results)
{
    RuntimeSummary summary;
    for (const ShotRuntime &result : results) {
        summary.starts.append(result.startTime());
        if (result.hasDuration())
            summary.durations.append(result.duration());
        summary.stops.append(result.stopTime());
        summary.longestTime = std::max(summary.longestTime, result.totalTime());
    }
    return summary;
}

// A shared buffer is never written to, so equal addresses mean equal samples.
bool RuntimeCache::isKnown(size_t shot, const QVector<double> &samples) const
{
    const QVector<double> &list = m_lists[shot];
    return list.size() == samples.size() && list.constData() == samples.constData()
           && m_results[shot].count == samples.size();
}

// Removals move results to smaller indices; the order stays, so one pass over both finds every result that is still
// valid. A result that is not found here is dropped and computed again.
void RuntimeCache::alignTo(const Shots &shots)
{
    size_t kept = 0;
    for (size_t old = 0; old < m_results.size() && kept < shots.size(); ++old) {
        if (!isKnown(old, *shots[kept]))
            continue;
        m_lists[kept] = m_lists[old];
        m_results[kept] = m_results[old];
        ++kept;
    }
    m_lists.resize(kept);
    m_results.resize(kept);
}

void RuntimeCache::releaseRemoved(const Shots &shots)
{
    alignTo(shots);
}

void RuntimeCache::refreshShot(size_t shot, const QVector<double> &samples, bool sameList, Work &work)
{
    ShotRuntime &result = m_results[shot];
    if (sameList && result.count == samples.size())
        return;
    if (sameList && result.count < samples.size()) {
        result = extendedRuntime(result, samples, m_criteria);
        ++work.extended;
    } else {
        result = shotRuntime(samples, m_criteria);
        ++work.scanned;
    }
}

RuntimeCache::Work RuntimeCache::refresh(const Shots &shots, const RuntimeCriteria &criteria, quint64 revision)
{
    const bool sameLists = revision == m_revision && m_results.size() == shots.size();
    if (!(criteria == m_criteria)) {
        m_results.clear();
        m_lists.clear();
    } else if (!sameLists) {
        alignTo(shots);
    }
    const size_t known = m_results.size();
    m_criteria = criteria;
    m_revision = revision;
    m_results.resize(shots.size());
    m_lists.resize(shots.size());

    Work work;
    for (size_t shot = 0; shot < shots.size(); ++shot) {
        const bool isLast = shot + 1 == shots.size();
        const QVector<double> &samples = *shots[shot];
        const bool sameList = shot < known && (isLast ? sameLists : isKnown(shot, samples));
        refreshShot(shot, samples, sameList, work);
        m_lists[shot] = isLast ? QVector<double>() : samples; // sharing a list that grows would copy it
    }
    return work;
}
