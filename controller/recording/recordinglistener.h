#pragma once

#include "model/sensordescription.h"

#include <array>

/// What a Recorder tells whoever shows a recording. Nothing has to be overridden. All calls come synchronously.
class RecordingListener
{
public:
    RecordingListener() = default;
    virtual ~RecordingListener() = default;
    Q_DISABLE_COPY_MOVE(RecordingListener)

    /// After every echo of a start or stop, even if it changed nothing.
    virtual void recordingRunning(bool running) { Q_UNUSED(running) }
    /// The model has a new measurement of each sensor, which dataChanged() has not announced yet.
    virtual void measurementBegun() {}
    /// After every sample line, stored or not; before dataChanged(). `seconds` is the time of the sample within its
    /// measurement, 0 if there is none. Has to be cheap.
    virtual void sampleTaken(const std::array<double, kNumSensors> &values, double seconds)
    {
        Q_UNUSED(values)
        Q_UNUSED(seconds)
    }
    /// From now on values are taken as thousandths, or no longer are: earlier ones were off by a factor of 1000.
    virtual void scaleChanged() {}
};
