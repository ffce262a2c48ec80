#pragma once

class Pacer;
class QIODevice;
struct ProjectDocument;

namespace projectfile {

/// Writes a document as JSON text, in the form of QJsonDocument's indented one, while the pacer counts samples. False
/// as soon as the device takes less than it is given.
[[nodiscard]] bool write(QIODevice &target, const ProjectDocument &document, Pacer &pacer);

} // namespace projectfile
