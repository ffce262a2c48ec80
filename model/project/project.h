#pragma once

#include "model/project/imagestore.h"
#include "model/project/projectmeta.h"
#include "model/projectsettings.h"
#include "model/shotstore.h"

#include <QColor>

#include <array>

/// All that a project consists of. `function` is the one that log lines name.
struct Project
{
    ProjectSettings settings;
    ShotStore shots;
    ProjectMeta meta; ///< labels and time stamps belong to the shots of the same index
    ImageStore images;
    std::array<QColor, kNumSensors> colors; ///< of the curves; no part of the project file
    PhaseNames defaultPhaseNames;           ///< in the language in use

    /// Project data, versions, comment, clock, settings of the evaluation and colours become those of a new project.
    void clearDescription();
    /// One group of five sensors without names.
    void clearSensors(const char *function);
    void clearImages(const char *function);
    void clearShots();
    /// Removes one shot with its label and time stamp; false if there is no such shot.
    [[nodiscard]] bool removeShot(int shot);

    void resetPhaseNames(const PhaseNames &defaults);
    /// Names that are still the default ones become the new defaults; false if there was none to change.
    [[nodiscard]] bool retranslatePhaseNames(const PhaseNames &defaults);
    /// The group that has the sensor; nullptr, and a log line, if there is none.
    [[nodiscard]] SensorGroup *groupWith(int group, int sensor, const char *function);
};
