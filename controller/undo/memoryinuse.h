#pragma once

#include <QtGlobal>

/// Memory of the computer that this program occupies, in bytes; 0 where the system does not say it in a file.
[[nodiscard]] qint64 memoryInUse();
