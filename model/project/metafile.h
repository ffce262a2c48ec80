#pragma once

#include "model/project/metastate.h"
#include "model/project/projectmeta.h"
#include "model/storage/atomicfile.h"

class ShotStore;

/// The check numbers of all shots, from the counts, first and last samples of their measurements.
[[nodiscard]] ShotChecks shotChecks(const ShotStore &shots);

/// What was read of the file beside a project file.
struct MetaReading
{
    MetaState state = MetaState::Missing;
    QString fileName;
    ProjectMeta meta; ///< blank unless it was read
};

/// Writes the file beside a project file; none if there is nothing to keep and no file to bring up to date. A file in
/// its place that cannot be read, or is of a newer version, gets another name first. Says why if it cannot be written,
/// beside a log line.
[[nodiscard]] FileFault saveMeta(const QString &projectFile, const ProjectMeta &meta, const ShotChecks &checks,
                                 const ReplaceOptions &options = {});

/// The name that saveMeta() would give to a file that is in its place: with ".bad" behind it, and a number from 2 on if
/// there is one already. Empty if there are too many.
[[nodiscard]] QString badMetaName(const QString &metaFile);

/// Reads the file beside a project file, or, if there is none, the one beside the link that the project file was named
/// by, or the previous version that belongs to the previous version of a project. A file that cannot be read gives a
/// log line under the name of the caller.
[[nodiscard]] MetaReading openMeta(const QString &projectFile, const ShotStore &shots, const char *function);
