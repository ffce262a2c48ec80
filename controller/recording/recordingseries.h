#pragma once

#include "model/storedshot.h"

#include <array>

class Model;

/// Which measurement of each sensor position receives the samples that arrive. Knows the measurements by their ids, so
/// that it finds them again wherever others are removed or put back; one that is removed receives nothing until it is
/// put back. Stays valid after a stop, so that the answer to a single-value request lands in the newest shot. Needs no
/// window.
class RecordingSeries
{
public:
    /// The measurement of a position; -1 for none or for a position outside 0 to 4.
    [[nodiscard]] int index(int position, const Model &model) const;
    /// Nothing changes for a position outside 0 to 4; a measurement that the model does not hold is none.
    void setIndex(int position, int measurement, const Model &model);
    /// The ids of the measurements, also of removed ones; 0 for none.
    [[nodiscard]] const ShotIds &ids() const { return m_ids; }
    /// True if every position has a measurement that the model holds.
    [[nodiscard]] bool isComplete(const Model &model) const;
    /// True if all five measurements exist and none has a sample yet.
    [[nodiscard]] bool isEmpty(const Model &model) const;
    void clear() { m_ids.fill(0); }

    /// Appends one value to every position that has a measurement; false if none took one.
    bool append(const std::array<double, kNumSensors> &values, Model &model) const;

private:
    ShotIds m_ids{};
    // Where the measurements were when the model had this structure: they need not be searched for every sample.
    mutable std::array<int, kNumSensors> m_indices{-1, -1, -1, -1, -1};
    mutable std::array<quint64, kNumSensors> m_revisions{};
};
