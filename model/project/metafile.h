#pragma once

#include "model/project/atomicfile.h"
#include "model/project/projectmeta.h"

class ShotStore;

/// The check numbers of all shots, from the counts, first and last samples of their measurements.
[[nodiscard]] ShotChecks shotChecks(const ShotStore &shots);

/// Writes the file beside a project file; none if there is nothing to keep and no file to bring up to date. False, and
/// a log line, if it cannot be written.
[[nodiscard]] bool saveMeta(const QString &projectFile, const ProjectMeta &meta, const ShotChecks &checks,
                            const ReplaceOptions &options = {});

/// Reads the file beside a project file. Nothing if there is none, or, with a log line under the name of the caller, if
/// it cannot be read.
[[nodiscard]] std::optional<ProjectMeta> openMeta(const QString &projectFile, const ShotStore &shots,
                                                  const char *function);
