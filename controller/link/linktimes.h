#pragma once

#include <vector>

/// Times of the watch over the link, in ms; tests make them short.
struct LinkTimes
{
    int tick = 250;         ///< how often silence is looked at
    int staleAfter = 2000;  ///< and 3 periods: the user is told that no data comes
    int resendAfter = 5000; ///< and 10 periods: the box is sent its period again, which it echoes
    int lostAfter = 15000;  ///< and 20 periods: the link counts as lost
    int answerWait = 2000;  ///< for the echo of a command
    std::vector<int> retryDelays{1000, 2000, 5000, 10000}; ///< between attempts after a loss; the last one repeats
    int probeTime = 1000;                                  ///< for one remembered box to answer
    int probeShown = 60000;                                ///< for which the answers of remembered boxes are shown
};
