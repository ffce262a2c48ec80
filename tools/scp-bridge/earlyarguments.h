#pragma once

#include <QStringList>

/// The arguments of this program, byte by byte, taken and wiped from its own list before anything else ran, so that a
/// list of processes shows the password for no longer than the system needs to load the program. `count` and `values`
/// are those of main(), for systems that let nothing run before.
[[nodiscard]] QStringList earlyArguments(int count, char **values);
