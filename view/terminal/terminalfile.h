#pragma once

#include <QString>

class QDateTime;
class QIODevice;

/// The line "Ventaro - terminal: saved on dd.MM.yyyy at hh:mm:ss", an empty line, the text. False if not every byte
/// could be written.
[[nodiscard]] bool writeTerminal(QIODevice &target, const QString &text, const QDateTime &savedAt);
