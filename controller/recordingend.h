#pragma once

#include "controller/desk.h"

class MesotraConnector;
class Recorder;

/// Ends the recording that runs before what it recorded is saved or given up, and waits a moment for what the box has
/// already sent.
class RecordingEnd
{
public:
    /// All references must outlive this. `wait`: how long the box may take to confirm, in ms.
    RecordingEnd(const Desk &desk, MesotraConnector &connector, Recorder &recorder, int wait);

    [[nodiscard]] bool isRecording() const;
    /// Stops the box and handles its lines until it confirms or the wait is over. Nothing without a recording or a
    /// link. What arrives later is still recorded.
    void finish();
    /// As finish(), but nothing is recorded afterwards, whatever the box does.
    void finishForGood();

private:
    Desk m_desk;
    MesotraConnector &m_connector;
    Recorder &m_recorder;
    int m_wait;
};
