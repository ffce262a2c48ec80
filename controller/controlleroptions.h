#pragma once

#include "controller/journal/journaloptions.h"
#include "device/demobox.h"
#include "device/scpprocess.h"

#include <QString>
#include <QStringList>

/// What the controller takes from outside, so that a test need not wait or use the real port.
struct ControllerOptions
{
    QString deviceAddress; ///< connected to first; empty: the user is asked
    quint16 port = 2222;
    int deviceDescriptionTimeout = 500; ///< ms
    int sensorDescriptionTimeout = 700; ///< ms
    QString scpToolFile;                ///< empty: "winscp/winscp.com" beside the program
    ScpTimeouts scpTimeouts;
    QString temporaryDirectory = QStringLiteral("tmp-blackbox-dir"); ///< for what is fetched; created when missing
    QString demoProgram;                                             ///< empty: the simulator beside the program
    int demoStartTimeout = DemoBox::kStartTimeout;                   ///< ms
    JournalOptions journal;
    QStringList filesGiven; ///< on the command line; the model has opened the only one already
    int stopWait = 500;     ///< ms; how long the box may take to confirm the end of a recording that is to be saved
    int typingPause = 1000; ///< ms without a key before a question that the box causes may open over a field
    int restartWait = 3000; ///< ms; how long the firmware dialog waits for a connection
};
