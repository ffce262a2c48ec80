#include "controller/recordingdisplay.h"

#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/view.h"

RecordingDisplay::RecordingDisplay(View &view)
    : m_view(view)
{}

void RecordingDisplay::recordingRunning(bool running)
{
    m_view.setRecordingRunning(running);
}

void RecordingDisplay::measurementBegun()
{
    m_view.tabOszi()->pointSlotsAtModel();
}

void RecordingDisplay::sampleTaken(const std::array<double, kNumSensors> &values, double seconds)
{
    m_view.showLiveValues(values, m_period);
    m_view.logSample(seconds, values);
}

void RecordingDisplay::scaleChanged()
{
    m_view.forgetLiveValues(); // off by a factor of 1000
}
