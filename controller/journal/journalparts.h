#pragma once

#include "controller/journal/journal.h"
#include "controller/journal/recovery.h"

class Recorder;

/// What protects unsaved work: the journal of this run, and the offer to restore those of earlier ones.
struct JournalParts
{
    /// All that is referred to must outlive the parts. Looks for journals of earlier runs at once.
    JournalParts(const Desk &desk, const JournalOptions &options, const Recorder &recorder,
                 const Recovery::Needs &needs);

    Journal journal;
    Recovery recovery;
};
