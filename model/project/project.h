#pragma once

#include "model/edit/shotchange.h"
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
    EditNotes *notes = nullptr;             ///< of an edit that is under way, in which what happens to shots is noted

    /// Project data, versions, comment, clock, settings of the evaluation and colours become those of a new project.
    void clearDescription();
    /// One group of five sensors without names.
    void clearSensors(const char *function);
    void clearImages(const char *function);
    void clearShots();
    /// Removes one shot with its label and time stamp; false if there is no such shot.
    [[nodiscard]] bool removeShot(int shot);
    /// Appends one measurement to each sensor; returns the index of the shot.
    int appendShot(std::array<SampleList, kNumSensors> samples);
    void setLabel(int shot, const QString &label);
    /// The shot that has one of these ids; -1 if there is none.
    [[nodiscard]] int indexOf(const ShotIds &ids) const;
    /// Takes the shot of a change out of the project and keeps it in the change, or puts it back. Notes nothing.
    void takeOut(ShotChange &change);
    void putBack(ShotChange &change);

    void resetPhaseNames(const PhaseNames &defaults);
    /// Names that are still the default ones become the new defaults; false if there was none to change.
    [[nodiscard]] bool retranslatePhaseNames(const PhaseNames &defaults);
    /// The group that has the sensor; nullptr, and a log line, if there is none.
    [[nodiscard]] SensorGroup *groupWith(int group, int sensor, const char *function);

private:
    void noteRemoval(int shot) const;
};
