#pragma once

#include "model/model.h"

#include <QtTest>

/// Appends a shot; every sensor gets the samples, each raised by `step` more than the sensor before it.
inline void addShot(Model &model, const SampleList &samples, double step = 0.0, const QDateTime &timestamp = {})
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const int shot = model.appendMeasurement(sensor);
        for (const double sample : samples)
            QVERIFY(model.appendSample(sensor, shot, sample + step * sensor));
    }
    if (timestamp.isValid())
        model.setTimestamp(model.numChannels(0) - 1, timestamp);
}
