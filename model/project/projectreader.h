#pragma once

#include <optional>

class Pacer;
class QIODevice;
struct ProjectDocument;

namespace projectfile {

/// Reads JSON text while the pacer counts bytes. Nothing if the text is not one valid JSON object or cannot be read to
/// its end. If a key is given twice, the last one counts. Lists that hold no samples are cut after 64 elements. Throws
/// std::bad_alloc if the samples do not fit into memory.
[[nodiscard]] std::optional<ProjectDocument> read(QIODevice &source, Pacer &pacer);

} // namespace projectfile
