#pragma once

#include <QString>

/// What is told about the journal of the running program.
struct JournalInfo
{
    QString folder;         ///< where journals are kept; empty: none is
    QString file;           ///< absolute; empty while there is nothing to protect
    int lastForced = -1;    ///< ms that the last forced write took; negative: none yet
    int longestForced = -1; ///< ms, since the program was started
};
