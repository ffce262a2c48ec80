#include "model/indexcheck.h"
#include "model/model.h"

#include <algorithm>
#include <cmath>

namespace {

// What the ends of a range start from, so that a measurement without samples has an inverted range.
constexpr double kNoMinimum = 9999999.0;
constexpr double kNoMaximum = -9999999.0;

// Squeezing copies: of a longer measurement that is felt, and what it has not used of its memory costs nothing.
constexpr int kLargestToSqueeze = 1000000;

} // namespace

int Model::numChannels(int sensor) const
{
    return isIndex(sensor, m_channels.size(), Q_FUNC_INFO) ? static_cast<int>(m_channels[at(sensor)].size()) : 0;
}

const SampleList *Model::measurement(int sensor, int measurement) const
{
    if (sensor < 0 || sensor >= kNumSensors || measurement < 0)
        return nullptr;
    const Channel &channel = m_channels[at(sensor)];
    return at(measurement) < channel.size() ? channel[at(measurement)].get() : nullptr;
}

quint64 Model::measurementId(int sensor, int measurement) const
{
    if (sensor < 0 || sensor >= kNumSensors || measurement < 0)
        return 0;
    const std::vector<quint64> &ids = m_ids[at(sensor)];
    return at(measurement) < ids.size() ? ids[at(measurement)] : 0;
}

int Model::measurementCount() const
{
    const auto longest = std::max_element(m_channels.begin(), m_channels.end(),
                                          [](const Channel &a, const Channel &b) { return a.size() < b.size(); });
    return static_cast<int>(longest->size());
}

int Model::appendMeasurement(int sensor)
{
    if (!isIndex(sensor, m_channels.size(), Q_FUNC_INFO))
        return -1;
    Channel &channel = m_channels[at(sensor)];
    channel.push_back(std::make_unique<SampleList>());
    m_ids[at(sensor)].push_back(++m_lastId);
    ++m_structureRevision;
    ++m_changes;
    return static_cast<int>(channel.size()) - 1;
}

bool Model::appendSample(int sensor, int measurement, double value)
{
    if (sensor < 0 || sensor >= kNumSensors || measurement < 0)
        return false;
    Channel &channel = m_channels[at(sensor)];
    if (at(measurement) >= channel.size())
        return false;
    channel[at(measurement)]->append(std::isfinite(value) ? value : 0.0);
    ++m_changes;
    return true;
}

bool Model::deleteChannel(int measurement)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " measurement=" << measurement;
    if (refusesWhileBusy(Q_FUNC_INFO) || !isIndex(measurement, at(measurementCount()), Q_FUNC_INFO))
        return false;
    for (std::size_t sensor = 0; sensor < m_channels.size(); ++sensor) {
        Channel &channel = m_channels[sensor];
        if (at(measurement) >= channel.size())
            continue;
        m_removed.push_back(std::move(channel[at(measurement)]));
        channel.erase(channel.begin() + measurement);
        m_ids[sensor].erase(m_ids[sensor].begin() + measurement);
    }
    m_meta.removeShot(measurement);
    ++m_structureRevision;
    ++m_changes;
    return true;
}

void Model::discardRemoved()
{
    m_removed.clear();
}

void Model::clearData()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    if (refusesWhileBusy(Q_FUNC_INFO))
        return;
    for (Channel &channel : m_channels) {
        std::move(channel.begin(), channel.end(), std::back_inserter(m_removed));
        channel.clear();
    }
    for (std::vector<quint64> &ids : m_ids)
        ids.clear();
    m_meta.labels.clear();
    m_meta.timestamps.clear();
    ++m_structureRevision;
    ++m_changes;
    announceDataChanged(Q_FUNC_INFO);
}

void Model::endRecording()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    for (Channel &channel : m_channels) {
        if (!channel.empty() && channel.back()->size() < kLargestToSqueeze)
            channel.back()->squeeze();
    }
}

double Model::latestValue(int group, int sensor) const
{
    if (group != 0) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: group out of range! (" << group << ")";
        return 0.0;
    }
    if (sensor < 0 || sensor >= kNumSensors) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: sensor out of range! (" << sensor << ")";
        return 0.0;
    }
    const Channel &channel = m_channels[at(sensor)];
    return channel.empty() || channel.back()->isEmpty() ? 0.0 : channel.back()->constLast();
}

bool Model::hasMeasurement(int sensor, int measurement, const char *function) const
{
    return isIndex(sensor, m_channels.size(), function)
           && isIndex(measurement, m_channels[at(sensor)].size(), function);
}

double Model::minimumValue(int sensor, int measurement) const
{
    if (!hasMeasurement(sensor, measurement, Q_FUNC_INFO))
        return 0.0;
    const SampleList &samples = *m_channels[at(sensor)][at(measurement)];
    return samples.isEmpty() ? kNoMinimum : *std::min_element(samples.cbegin(), samples.cend());
}

double Model::maximumValue(int sensor, int measurement) const
{
    if (!hasMeasurement(sensor, measurement, Q_FUNC_INFO))
        return 0.0;
    const SampleList &samples = *m_channels[at(sensor)][at(measurement)];
    return samples.isEmpty() ? kNoMaximum : *std::max_element(samples.cbegin(), samples.cend());
}
