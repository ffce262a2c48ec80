#pragma once

#include "model/samplelist.h"
#include "model/sensordescription.h"
#include "model/storedshot.h"

#include <array>
#include <vector>

/// The samples of all measurements: for each sensor an ordered list of measurements. A SampleList keeps its address
/// until its measurement is removed; a removed one is kept alive until discardRemoved(), as plots may still point at
/// it, and as long as somebody else has a share in it. An index out of range is not logged and changes nothing.
class ShotStore
{
public:
    using Samples = std::shared_ptr<SampleList>;
    using Channel = std::vector<Samples>;

    /// Measurements of one sensor.
    [[nodiscard]] int count(int sensor) const;
    /// Measurements of the sensor that has most of them: while a recording begins, one is ahead of the others.
    [[nodiscard]] int shotCount() const;
    /// nullptr if there is no such measurement.
    [[nodiscard]] const SampleList *samples(int sensor, int measurement) const;
    /// A number that no other measurement of this store has or had; 0 if there is no such measurement. While it stays
    /// the same, samples have been appended to the measurement but none changed.
    [[nodiscard]] quint64 id(int sensor, int measurement) const;
    /// The measurement of the sensor that has this id; -1 if there is none. Fast for the newest ones.
    [[nodiscard]] int indexOf(int sensor, quint64 id) const;
    /// A share in the measurement of every sensor that has it.
    [[nodiscard]] StoredShot shot(int measurement) const;
    /// Changes whenever a measurement is added or removed (not when a sample is appended).
    [[nodiscard]] quint64 structureRevision() const { return m_structureRevision; }
    /// Changes with every change, appended samples included.
    [[nodiscard]] quint64 revision() const { return m_revision; }

    /// Last sample of the newest measurement; 0.0 if there is none.
    [[nodiscard]] double latest(int sensor) const;
    /// Smallest and largest sample. The range of a measurement without samples is inverted; 0.0 without measurement.
    [[nodiscard]] double minimum(int sensor, int measurement) const;
    [[nodiscard]] double maximum(int sensor, int measurement) const;

    /// Appends one measurement to one sensor; returns its index, -1 for a bad sensor.
    int append(int sensor, SampleList samples = {});
    /// Appends one sample; a number that is not finite counts as 0. False if there is no such measurement.
    bool appendSample(int sensor, int measurement, double value);
    /// Replaces all measurements of one sensor.
    void setChannel(int sensor, Channel channel);
    /// Removes measurements that follow each other, of every sensor that has them; returns how many there were.
    int remove(int first, int count = 1);
    /// Removes those of a shot's measurements that are in the store, wherever they are, and returns a share in them.
    [[nodiscard]] StoredShot take(const ShotIds &ids);
    /// Puts measurements back that were removed, one behind the other and with their ids, and moves those from the
    /// index on up; behind the last one if the index is higher.
    void insert(int first, const std::vector<StoredShot> &shots);
    void clear();
    /// Frees the samples of removed measurements: call once no plot points at them any more.
    void discardRemoved() { m_removed.clear(); }
    /// Gives back the memory that the newest measurements have not used.
    void squeezeNewest();

private:
    [[nodiscard]] SampleList *find(int sensor, int measurement) const;
    void removeFrom(std::size_t sensor, int first, int count);
    void countStructureChange();

    std::array<Channel, kNumSensors> m_channels;
    std::array<std::vector<quint64>, kNumSensors> m_ids; // one per measurement
    Channel m_removed;
    quint64 m_lastId = 0;
    quint64 m_structureRevision = 0;
    quint64 m_revision = 0;
};
