#include "controller/recordingactions.h"

#include "controller/link/boxlink.h"
#include "controller/occupancy.h"
#include "controller/recording/recorder.h"
#include "model/edit/editscope.h"
#include "view/window/view.h"

RecordingActions::RecordingActions(const Desk &desk, Recorder &recorder, BoxLink &link)
    : m_desk(desk)
    , m_recorder(recorder)
    , m_link(link)
{}

void RecordingActions::startOrStop()
{
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    if (m_recorder.isRunning())
        m_recorder.requestStop();
    else
        m_recorder.requestStart();
    if (!m_link.isConnected())
        m_link.showNotConnected();
}

void RecordingActions::calibrate()
{
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    // While recording, the latest values are at hand.
    if (!m_recorder.isRunning()) {
        if (!m_link.isConnected())
            m_link.showNotConnected();
        m_recorder.requestCalibration();
        // The answer arrives while the box is up; lines are handled meanwhile.
        m_desk.occupancy.ask(
            [this] { m_desk.view.showMessage(tr("Die Sensoren werden kalibriert."), tr("Kalibrierung")); });
    }
    const EditScope edit(&m_desk.model, [] { return tr("Kalibrierung"); });
    m_recorder.calibrate();
}
