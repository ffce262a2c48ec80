#pragma once

#include "model/project/imagestore.h"
#include "model/project/metastate.h"
#include "model/project/namelist.h"

#include <QString>

#include <array>

struct ProjectDocument;

/// What the program does not understand of the project that was opened, for messages.
struct OpenLosses
{
    QString newerVersion;   ///< of the file; empty if it is a version that the program knows
    bool isForeign = false; ///< a JSON object without any key of a project
    NameList unknown;       ///< keys that are kept and written again
    NameList lost;          ///< keys that a file saved from this project will lack
    std::array<PictureState, kNumProjectImages> pictures{};
    MetaState meta = MetaState::Read; ///< of the file beside the project
    QString metaFile;                 ///< its name, with its path

    /// True if the user has to be told. A file beside the project that is missing is not worth a question.
    [[nodiscard]] bool isAny() const;
};

/// All but what concerns the file beside the project.
[[nodiscard]] OpenLosses lossesOf(const ProjectDocument &document, const ImageStore &images);
