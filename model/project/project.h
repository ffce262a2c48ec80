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
    /// Removes shots that follow each other with their labels and time stamps; returns how many there were.
    int removeShots(int first, int count);
    /// Appends one measurement to each sensor; returns the index of the shot.
    int appendShot(std::array<SampleList, kNumSensors> samples);
    void setLabel(int shot, const QString &label);
    /// The shot that has one of these ids; -1 if there is none.
    [[nodiscard]] int indexOf(const ShotIds &ids) const;
    /// Takes the shots of changes out of the project, one after the other, and keeps them in the changes, or puts them
    /// back. Those that follow each other move at once: taken out from the last one down, put back from the first one
    /// up. Notes nothing.
    void takeOut(const ShotChanges &changes);
    void putBack(const ShotChanges &changes);

    void resetPhaseNames(const PhaseNames &defaults);
    /// Names that are still the default ones become the new defaults; false if there was none to change.
    [[nodiscard]] bool retranslatePhaseNames(const PhaseNames &defaults);
    /// The group that has the sensor; nullptr, and a log line, if there is none.
    [[nodiscard]] SensorGroup *groupWith(int group, int sensor, const char *function);

private:
    using ChangeIterator = ShotChanges::const_iterator;

    void noteRemoval(int shot) const;
    void takeOutOne(ShotChange &change, int shot);
    [[nodiscard]] ChangeIterator takeOutRun(ChangeIterator first, ChangeIterator end);
    [[nodiscard]] ChangeIterator putBackRun(ChangeIterator first, ChangeIterator end);
};
