#include "model/shotstore.h"

#include "model/arrayindex.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

// What the ends of a range start from, so that a measurement without samples has an inverted range.
constexpr double kNoMinimum = 9999999.0;
constexpr double kNoMaximum = -9999999.0;

// Squeezing copies: with a longer measurement the user would notice, and memory it has not used costs nothing.
constexpr int kLargestToSqueeze = 1000000;

bool isSensor(int sensor)
{
    return sensor >= 0 && sensor < kNumSensors;
}

} // namespace

int ShotStore::count(int sensor) const
{
    return isSensor(sensor) ? static_cast<int>(m_channels[at(sensor)].size()) : 0;
}

int ShotStore::shotCount() const
{
    const auto longest = std::max_element(m_channels.begin(), m_channels.end(),
                                          [](const Channel &a, const Channel &b) { return a.size() < b.size(); });
    return static_cast<int>(longest->size());
}

SampleList *ShotStore::find(int sensor, int measurement) const
{
    if (!isSensor(sensor) || measurement < 0)
        return nullptr;
    const Channel &channel = m_channels[at(sensor)];
    return at(measurement) < channel.size() ? channel[at(measurement)].get() : nullptr;
}

const SampleList *ShotStore::samples(int sensor, int measurement) const
{
    return find(sensor, measurement);
}

quint64 ShotStore::id(int sensor, int measurement) const
{
    return find(sensor, measurement) ? m_ids[at(sensor)][at(measurement)] : 0;
}

int ShotStore::indexOf(int sensor, quint64 id) const
{
    if (!isSensor(sensor) || id == 0)
        return -1;
    const std::vector<quint64> &ids = m_ids[at(sensor)];
    const auto found = std::find(ids.rbegin(), ids.rend(), id);
    return static_cast<int>(std::distance(found, ids.rend())) - 1;
}

StoredShot ShotStore::shot(int measurement) const
{
    StoredShot shot;
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        shot.ids[at(sensor)] = id(sensor, measurement);
        if (shot.ids[at(sensor)] != 0)
            shot.samples[at(sensor)] = m_channels[at(sensor)][at(measurement)];
    }
    return shot;
}

double ShotStore::latest(int sensor) const
{
    const SampleList *newest = find(sensor, count(sensor) - 1);
    return newest && !newest->isEmpty() ? newest->constLast() : 0.0;
}

double ShotStore::minimum(int sensor, int measurement) const
{
    const SampleList *samples = find(sensor, measurement);
    if (!samples)
        return 0.0;
    return samples->isEmpty() ? kNoMinimum : *std::min_element(samples->cbegin(), samples->cend());
}

double ShotStore::maximum(int sensor, int measurement) const
{
    const SampleList *samples = find(sensor, measurement);
    if (!samples)
        return 0.0;
    return samples->isEmpty() ? kNoMaximum : *std::max_element(samples->cbegin(), samples->cend());
}

int ShotStore::append(int sensor, SampleList samples)
{
    if (!isSensor(sensor))
        return -1;
    m_channels[at(sensor)].push_back(std::make_shared<SampleList>(std::move(samples)));
    m_ids[at(sensor)].push_back(++m_lastId);
    countStructureChange();
    return count(sensor) - 1;
}

bool ShotStore::appendSample(int sensor, int measurement, double value)
{
    SampleList *samples = find(sensor, measurement);
    if (!samples)
        return false;
    samples->append(std::isfinite(value) ? value : 0.0);
    ++m_revision;
    return true;
}

void ShotStore::setChannel(int sensor, Channel channel)
{
    if (!isSensor(sensor))
        return;
    // Plots may still point at the old ones.
    Channel &old = m_channels[at(sensor)];
    std::move(old.begin(), old.end(), std::back_inserter(m_removed));
    old = std::move(channel);
    m_ids[at(sensor)].resize(old.size());
    for (quint64 &id : m_ids[at(sensor)])
        id = ++m_lastId; // never one that a replaced measurement had
    countStructureChange();
}

int ShotStore::remove(int first, int count)
{
    if (first < 0 || first >= shotCount() || count <= 0)
        return 0;
    const int removed = std::min(count, shotCount() - first);
    for (std::size_t sensor = 0; sensor < m_channels.size(); ++sensor)
        removeFrom(sensor, first, removed);
    countStructureChange();
    return removed;
}

StoredShot ShotStore::take(const ShotIds &ids)
{
    StoredShot shot;
    shot.ids = ids;
    for (std::size_t sensor = 0; sensor < m_channels.size(); ++sensor) {
        const int index = indexOf(static_cast<int>(sensor), ids[sensor]);
        if (index < 0)
            continue;
        shot.samples[sensor] = m_channels[sensor][at(index)];
        removeFrom(sensor, index, 1);
    }
    countStructureChange();
    return shot;
}

/// Another sensor may be ahead of this one, which then has fewer of them.
void ShotStore::removeFrom(std::size_t sensor, int first, int count)
{
    Channel &channel = m_channels[sensor];
    const auto size = static_cast<std::ptrdiff_t>(channel.size());
    const auto begin = std::min<std::ptrdiff_t>(first, size);
    const auto end = std::min<std::ptrdiff_t>(begin + count, size);
    std::move(channel.begin() + begin, channel.begin() + end, std::back_inserter(m_removed));
    channel.erase(channel.begin() + begin, channel.begin() + end);
    m_ids[sensor].erase(m_ids[sensor].begin() + begin, m_ids[sensor].begin() + end);
}

void ShotStore::insert(int first, const std::vector<StoredShot> &shots)
{
    for (std::size_t sensor = 0; sensor < m_channels.size(); ++sensor) {
        Channel samples;
        std::vector<quint64> ids;
        for (const StoredShot &shot : shots) {
            if (!shot.samples[sensor])
                continue;
            samples.push_back(shot.samples[sensor]);
            ids.push_back(shot.ids[sensor]);
        }
        Channel &channel = m_channels[sensor];
        const auto place = std::clamp<std::ptrdiff_t>(first, 0, static_cast<std::ptrdiff_t>(channel.size()));
        channel.insert(channel.begin() + place, samples.begin(), samples.end());
        m_ids[sensor].insert(m_ids[sensor].begin() + place, ids.begin(), ids.end());
    }
    countStructureChange();
}

void ShotStore::clear()
{
    for (Channel &channel : m_channels) {
        std::move(channel.begin(), channel.end(), std::back_inserter(m_removed));
        channel.clear();
    }
    for (std::vector<quint64> &ids : m_ids)
        ids.clear();
    countStructureChange();
}

void ShotStore::squeezeNewest()
{
    for (Channel &channel : m_channels) {
        if (!channel.empty() && channel.back()->size() < kLargestToSqueeze)
            channel.back()->squeeze();
    }
}

void ShotStore::countStructureChange()
{
    ++m_structureRevision;
    ++m_revision;
}
