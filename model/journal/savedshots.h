#pragma once

#include "model/project/projectmeta.h"
#include "model/sensordescription.h"

#include <QtGlobal>

#include <array>
#include <vector>

struct Project;

/// A measurement as a project file holds it.
struct SavedRun
{
    quint64 id = 0; ///< of the model's measurement; 0 if the model no longer has it
    int count = 0;  ///< samples in the file
};

/// What the file of a project holds, in terms of the model: with it a change can be told by what differs.
struct SavedShots
{
    std::array<std::vector<SavedRun>, kNumSensors> runs; ///< in the order of the file
    ShotChecks checks;                                   ///< of the shots in the file
    std::array<qint64, 5> pictures{}; ///< QPixmap::cacheKey() of each; 0 for none, negative for one that the
                                      ///< model does not have
};

/// All that the project holds now, as it is about to be written or was just read.
[[nodiscard]] SavedShots savedShots(const Project &project);
