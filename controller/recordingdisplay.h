#pragma once

#include "controller/recording/recordinglistener.h"

class View;

/// Shows in the window what a recording does.
class RecordingDisplay : public RecordingListener
{
public:
    /// The view must outlive the display.
    explicit RecordingDisplay(View &view);

    /// The sampling period of the box in ms; 0 until it is known.
    void setPeriod(int milliseconds) { m_period = milliseconds; }

    void recordingRunning(bool running) override;
    void measurementBegun() override;
    void sampleTaken(const std::array<double, kNumSensors> &values, double seconds) override;
    void scaleChanged() override;

private:
    View &m_view;
    int m_period = 0;
};
