#pragma once

#include "model/journal/journalcontents.h"
#include "model/journal/savedshots.h"
#include "model/project/projectdocument.h"
#include "model/project/projectmeta.h"

/// What of a project could not be restored, as the file that it began with is not what it was.
struct RecoveryLosses
{
    int shots = 0;    ///< missing altogether
    int cutShots = 0; ///< whose beginning is missing
    int pictures = 0;
};

/// A project put together from a journal and the file that it began with.
struct RecoveredProject
{
    ProjectDocument document; ///< with pictures and samples
    ProjectMeta meta;
    /// Per sensor and measurement: its index in the base file, and the samples from there; an index of -1 for none.
    struct Origin
    {
        int index = -1;
        int count = 0;
    };
    std::array<std::vector<Origin>, kNumSensors> origins;
    SavedShots saved; ///< of the file; the ids are set when the model has given them
    RecoveryLosses losses;
};

/// `base` is what the file that the journal began with holds now; nothing if it is missing or unreadable. Shots of it
/// are told by their check numbers, so a file that has changed does no harm. Samples are moved out of both. Throws
/// std::bad_alloc.
[[nodiscard]] RecoveredProject recoverProject(JournalContents &contents, std::optional<ProjectDocument> base);
