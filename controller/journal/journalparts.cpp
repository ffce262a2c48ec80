#include "controller/journal/journalparts.h"

#include "controller/recording/recorder.h"

JournalParts::JournalParts(const Desk &desk, const JournalOptions &options, const Recorder &recorder,
                           const Recovery::Needs &needs)
    : journal(desk.model, options, [&recorder] { return recorder.isRunning(); })
    , recovery(
          desk, needs, journal, [&recorder] { return recorder.isRunning(); }, options.folder)
{
    recovery.begin();
}
