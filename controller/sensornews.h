#pragma once

#include "model/sensordescription.h"

class TabOszilloscope;

/// What is new in a description of the sensors.

/// True if a project file would contain the same for both.
[[nodiscard]] bool isSavedAlike(const SensorDescription &a, const SensorDescription &b);
/// True if a sensor of the first group has a name.
[[nodiscard]] bool isAnySensorNamed(const SensorDescription &description);
/// The rows of the oscilloscope take over limits that are new; the user's own range survives the description that
/// comes with every connection. `now` needs at least one group.
void showNewLimits(const SensorDescription &before, const SensorDescription &now, TabOszilloscope &tab);
