#pragma once

#include <QString>

/// Where the journal is kept, and its times in ms, so that a test need not wait.
struct JournalOptions
{
    QString folder; ///< empty: none is kept, and none of another run is offered
    QString programVersion;
    int handOver = 250;      ///< between two looks for changes
    int force = 5000;        ///< at least between two forced writes, except at the end of a shot
    int retry = 5000;        ///< until a failed write is tried again
    int slowForce = 20;      ///< a forced write that took longer makes the next ones rarer:
    int pausePerForce = 250; ///< at least this between two of them for each ms that the last one took
};
