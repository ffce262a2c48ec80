#pragma once

#include "controller/recording/recordingseries.h"
#include "controller/recording/shotclock.h"
#include "device/protocol/sampleline.h"

#include <QElapsedTimer>

#include <optional>

class MesotraConnector;
class Model;
class ProjectEdits;
class RecordingListener;

/// Records what the box measures: owns the recording flag, the measurements that receive samples, the scale of the
/// values and the calibration. Needs no window.
///
/// The recording flag follows the echoes of the box, not what was asked of it.
class Recorder
{
public:
    /// The four references must outlive the recorder.
    Recorder(Model &model, ProjectEdits &edits, MesotraConnector &connector, RecordingListener &listener,
             ShotClock clock = ShotClock());

    /// True from the echo of a start to the echo of the stop, or to the end of the link.
    [[nodiscard]] bool isRunning() const { return m_running; }
    /// The measurement of a sensor position (0 to 4) that receives the samples; -1 for none.
    [[nodiscard]] int seriesIndex(int position) const { return m_series.index(position, m_model); }
    /// The ids of the shot that grows; 0 for each sensor while no recording runs.
    [[nodiscard]] ShotIds growingShot() const { return m_running ? m_series.ids() : ShotIds(); }
    /// Tells the listener again that a recording runs, if one does.
    void announceRunning() const;
    [[nodiscard]] bool areValuesInThousandths() const { return m_inThousandths; }
    void setValuesInThousandths(bool inThousandths);

    // --- Requests to the box; its echo takes effect ---
    void requestStart();
    /// Also gives back the memory that the newest measurements have not used.
    void requestStop();
    /// Asks for a single value line, whose values calibrate() uses even if no measurement takes them.
    void requestCalibration();
    /// Sets each offset to the negated latest value of its sensor.
    void calibrate();

    // --- What the box reports ---
    void started();
    void stopped();
    void takeSampleLine(const QString &message);
    /// Ends a recording that is running; true if there was one. The listener is not told.
    [[nodiscard]] bool endWithLink();
    /// Milliseconds since the previous call, 0 at the first one; for the log of the sample lines.
    [[nodiscard]] qint64 restartLineClock();

    /// Time stamps follow the computer's clock again; see ShotClock.
    void restartShotClock() { m_clock.restart(); }

    // --- What happens to the measurements ---
    /// No measurement receives samples until the next one begins.
    void forgetSeries() { m_series.clear(); }

private:
    void beginMeasurement();
    [[nodiscard]] bool store(const SampleLine &sample);
    [[nodiscard]] double secondsOfNewestSample() const;
    [[nodiscard]] double latestValue(int sensor) const;

    Model &m_model;
    ProjectEdits &m_edits;
    MesotraConnector &m_connector;
    RecordingListener &m_listener;
    RecordingSeries m_series;
    ShotClock m_clock;
    QElapsedTimer m_sinceLine;
    std::optional<SampleLine> m_unstoredAnswer; // came while calibrating and found no measurement to land in
    bool m_running = false;
    bool m_calibrating = false;
    bool m_inThousandths = false;
};
