#pragma once

#include "model/sensordescription.h"

#include <array>

class Model;

/// Which measurement of each sensor position receives the samples that arrive. An index below 0 receives nothing.
/// Stays valid after a stop, so that the answer to a single-value request lands in the newest shot. Needs no window.
class RecordingSeries
{
public:
    /// The measurement of a position; -1 for none or for a position outside 0 to 4.
    [[nodiscard]] int index(int position) const;
    void setIndex(int position, int measurement);
    /// True if every position has a measurement that the model holds.
    [[nodiscard]] bool isComplete(const Model &model) const;
    /// True if all five measurements exist and none has a sample yet.
    [[nodiscard]] bool isEmpty(const Model &model) const;
    /// Keeps the indices right after one measurement was removed: later ones move down, the removed one becomes -1.
    void measurementRemoved(int measurement);
    void clear() { m_indices.fill(-1); }

    /// Appends one value to every position that has a measurement; false if none took one.
    bool append(const std::array<double, kNumSensors> &values, Model &model) const;

private:
    std::array<int, kNumSensors> m_indices{-1, -1, -1, -1, -1};
};
