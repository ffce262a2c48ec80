#pragma once

#include <QString>

/// A file name, without a suffix, made of what the user calls a project: without what a file name cannot have on any
/// system. Empty if nothing is left.
[[nodiscard]] QString proposedFileName(const QString &projectName);
