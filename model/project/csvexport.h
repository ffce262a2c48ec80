#pragma once

class Pacer;
class QIODevice;
class QString;
struct ProjectDocument;

/// Writes the measurements as text for a spreadsheet: fields separated by ";", numbers in German notation with six
/// significant digits. `projectFileName` follows "Dateiname: ". The pacer counts samples. False as soon
/// as the device takes less than it is given.
[[nodiscard]] bool writeCsv(QIODevice &target, const QString &projectFileName, const ProjectDocument &document,
                            Pacer &pacer);
