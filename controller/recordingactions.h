#pragma once

#include "controller/desk.h"

#include <QCoreApplication>

class BoxLink;
class Recorder;

/// What the user starts at the recorder: recordings and the calibration.
class RecordingActions
{
    Q_DECLARE_TR_FUNCTIONS(RecordingActions)

public:
    /// All references must outlive the actions.
    RecordingActions(const Desk &desk, Recorder &recorder, BoxLink &link);

    void startOrStop();
    void calibrate();

private:
    Desk m_desk;
    Recorder &m_recorder;
    BoxLink &m_link;
};
