#pragma once

#include "model/journal/journalcontents.h"

#include <functional>
#include <optional>

class QIODevice;

/// Reads up to the first block that is torn or false. Nothing if there is no complete block, if what the first one
/// holds is no base, or if memory runs out. No number in it is trusted. `pause` is called after each block.
[[nodiscard]] std::optional<JournalContents> readJournal(
    QIODevice &source, const std::function<void()> &pause = [] {});
