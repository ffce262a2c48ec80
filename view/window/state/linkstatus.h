#pragma once

#include <QDateTime>
#include <QString>

/// All that the state line shows of the link and the recording.
struct LinkStatus
{
    enum class Link {
        Off,        ///< nobody wants one
        Connecting, ///< an attempt of the user
        On,
        Retrying ///< lost, and tried again by itself
    };

    Link link = Link::Off;
    QString box; ///< address of the box that is, was or will be connected
    bool isDemo = false;

    // While link is On.
    QDateTime recordingSince; ///< invalid: nothing is recorded
    int samples = 0;          ///< of the shot in progress
    int shots = 0;            ///< in the project
    double rate = 0.0;        ///< samples a second that come in
    int staleFor = 0;         ///< ms without a sample in a recording; 0: all is well
    bool isBoxMute = false;   ///< a command had no answer
    int missing = 0;          ///< values missing in the last shot; 0: none worth a word

    // The last loss of a link.
    QDateTime lostAt;          ///< invalid: there was none, or the user has seen it
    QDateTime backAt;          ///< invalid: the link is not back
    QString reason;            ///< in a few words
    int nextAttempt = 0;       ///< number of the attempt that comes next, from 1
    int timeToNext = 0;        ///< ms until then
    bool willContinue = false; ///< a recording goes on as soon as the link is back
};
