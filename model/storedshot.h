#pragma once

#include "model/samplelist.h"
#include "model/sensordescription.h"

#include <array>
#include <memory>

/// The ids of one shot's measurements by sensor; 0 for a sensor that has none.
using ShotIds = std::array<quint64, kNumSensors>;

/// A share in the measurements of one shot, which keeps the samples alive after the shot was removed.
struct StoredShot
{
    ShotIds ids{};
    std::array<std::shared_ptr<SampleList>, kNumSensors> samples; ///< null for a sensor that has none
};
