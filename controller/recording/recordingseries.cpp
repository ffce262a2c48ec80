#include "controller/recording/recordingseries.h"

#include "model/model.h"

#include <algorithm>

int RecordingSeries::index(int position) const
{
    return position >= 0 && position < kNumSensors ? m_indices[static_cast<std::size_t>(position)] : -1;
}

void RecordingSeries::setIndex(int position, int measurement)
{
    if (position >= 0 && position < kNumSensors)
        m_indices[static_cast<std::size_t>(position)] = measurement;
}

bool RecordingSeries::isComplete(const Model &model) const
{
    for (int position = 0; position < kNumSensors; ++position)
        if (!model.measurement(position, index(position)))
            return false;
    return true;
}

bool RecordingSeries::isEmpty(const Model &model) const
{
    for (int position = 0; position < kNumSensors; ++position) {
        const SampleList *samples = model.measurement(position, index(position));
        if (!samples || !samples->isEmpty())
            return false;
    }
    return true;
}

void RecordingSeries::measurementRemoved(int measurement)
{
    for (int &index : m_indices) {
        if (index == measurement)
            index = -1;
        else if (index > measurement)
            --index;
    }
}

bool RecordingSeries::append(const std::array<double, kNumSensors> &values, Model &model) const
{
    bool taken = false;
    for (int position = 0; position < kNumSensors; ++position) {
        const auto i = static_cast<std::size_t>(position);
        // A position without a measurement has an index that the model refuses without a word.
        taken = model.appendSample(position, m_indices[i], values[i]) || taken;
    }
    return taken;
}
