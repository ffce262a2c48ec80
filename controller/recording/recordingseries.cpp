#include "controller/recording/recordingseries.h"

#include "model/model.h"

int RecordingSeries::index(int position, const Model &model) const
{
    if (position < 0 || position >= kNumSensors)
        return -1;
    const auto i = static_cast<std::size_t>(position);
    if (m_ids[i] == 0)
        return -1;
    if (m_revisions[i] != model.structureRevision()) {
        m_revisions[i] = model.structureRevision();
        m_indices[i] = model.indexOfMeasurement(position, m_ids[i]);
    }
    return m_indices[i];
}

void RecordingSeries::setIndex(int position, int measurement, const Model &model)
{
    if (position < 0 || position >= kNumSensors)
        return;
    const auto i = static_cast<std::size_t>(position);
    m_ids[i] = model.measurementId(position, measurement);
    m_indices[i] = measurement;
    m_revisions[i] = model.structureRevision();
}

bool RecordingSeries::isComplete(const Model &model) const
{
    for (int position = 0; position < kNumSensors; ++position)
        if (!model.measurement(position, index(position, model)))
            return false;
    return true;
}

bool RecordingSeries::isEmpty(const Model &model) const
{
    for (int position = 0; position < kNumSensors; ++position) {
        const SampleList *samples = model.measurement(position, index(position, model));
        if (!samples || !samples->isEmpty())
            return false;
    }
    return true;
}

bool RecordingSeries::append(const std::array<double, kNumSensors> &values, Model &model) const
{
    bool taken = false;
    for (int position = 0; position < kNumSensors; ++position) {
        const auto i = static_cast<std::size_t>(position);
        // A position without a measurement has an index that the model refuses without a word.
        taken = model.appendSample(position, index(position, model), values[i]) || taken;
    }
    return taken;
}
