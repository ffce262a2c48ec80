#pragma once

#include <QString>

class QDateTime;
class QIODevice;

/// The name with the suffix appended, unless it ends with it already.
[[nodiscard]] QString withSuffix(const QString &fileName, const QString &suffix, Qt::CaseSensitivity sensitivity);
/// The line "Ventaro - terminal: saved on dd.MM.yyyy at hh:mm:ss", an empty line, the text. False if not every byte
/// could be written.
[[nodiscard]] bool writeTerminal(QIODevice &target, const QString &text, const QDateTime &savedAt);
