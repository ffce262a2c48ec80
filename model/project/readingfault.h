#pragma once

#include "model/storage/filefault.h"

class QFile;

/// Why no project could be read from a file that is open. Reads it again to find the place.
[[nodiscard]] FileFault readingFault(QFile &file, bool lacksMemory);
