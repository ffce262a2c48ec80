#pragma once

#include "model/project/projectmeta.h"
#include "model/storedshot.h"

#include <algorithm>
#include <vector>

/// A shot that an edit has removed from a project or added to it. While the shot is not in the project, the change
/// keeps it.
struct ShotChange
{
    bool isRemoval = false; ///< what the edit did when it was made
    int index = 0;          ///< of the shot when it was removed or added
    StoredShot shot;        ///< samples only while the shot is not in the project
    ShotMeta meta;          ///< the same

    [[nodiscard]] bool isOut() const
    {
        return std::any_of(shot.samples.begin(), shot.samples.end(), [](const auto &samples) { return bool(samples); });
    }
};

using ShotChanges = std::vector<ShotChange *>; ///< not owned, none is null

/// Another label of a shot, wherever that is.
struct LabelChange
{
    ShotIds ids{};
    QString before;
    QString after;
};

/// What an edit has done to shots, in the order in which it did it.
struct EditNotes
{
    std::vector<ShotChange> shots;
    std::vector<LabelChange> labels;
};
