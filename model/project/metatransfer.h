#pragma once

struct Project;
struct ProjectMeta;

/// What the file beside a project is to hold: its settings, and the units of its sensors.
[[nodiscard]] ProjectMeta metaOf(const Project &project);

/// Puts into a project what was read from the file beside it. A sensor takes its unit only if name and limits are those
/// that it had with that unit: the project may have been changed without the file.
void applyMeta(ProjectMeta meta, Project &project);
