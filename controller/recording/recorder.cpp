#include "controller/recording/recorder.h"

#include "controller/logging.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recordinglistener.h"
#include "device/mesotraconnector.h"
#include "model/changescope.h"
#include "model/model.h"

#include <utility>

Recorder::Recorder(Model &model, ProjectEdits &edits, MesotraConnector &connector, RecordingListener &listener,
                   ShotClock clock)
    : m_model(model)
    , m_edits(edits)
    , m_connector(connector)
    , m_listener(listener)
    , m_clock(std::move(clock))
{}

void Recorder::setValuesInThousandths(bool inThousandths)
{
    if (std::exchange(m_inThousandths, inThousandths) != inThousandths)
        m_listener.scaleChanged();
}

void Recorder::announceRunning() const
{
    if (m_running)
        m_listener.recordingRunning(true);
}

void Recorder::requestStart()
{
    m_connector.startMeasurement();
}

void Recorder::requestStop()
{
    m_connector.stopMeasurement();
    m_model.endRecording();
}

// --- Echoes of the box ---

void Recorder::started()
{
    qCDebug(lcController) << "received 'run=1'";
    const bool wasRunning = std::exchange(m_running, true);
    m_listener.recordingRunning(true);
    // An echo that comes twice must not leave an empty shot behind.
    if (wasRunning && m_series.isEmpty(m_model))
        return;
    beginMeasurement();
}

void Recorder::stopped()
{
    m_running = false;
    m_listener.recordingRunning(false);
}

bool Recorder::endWithLink()
{
    const bool wasRunning = std::exchange(m_running, false);
    if (wasRunning)
        m_model.endRecording();
    return wasRunning;
}

void Recorder::beginMeasurement()
{
    for (int position = 0; position < kNumSensors; ++position)
        m_series.setIndex(position, m_model.appendMeasurement(position), m_model);
    m_model.setTimestamp(m_series.index(0, m_model), m_clock.now());
    m_model.setSamplingPeriod(m_series.index(0, m_model), m_model.clock());
    m_listener.measurementBegun();
    // A deletion that ended with a syntax error has left them blocked.
    m_model.blockSignals(false);
    m_edits.markModified();
    m_model.emitDataChanged();
}

// --- Samples ---

void Recorder::takeSampleLine(const QString &message)
{
    const std::optional<SampleLine> sample = parseSampleLine(message, m_inThousandths ? 1000.0 : 1.0);
    if (!sample) {
        qCDebug(lcController) << "received data. ERROR: No List!";
        return;
    }
    // The shot in progress was deleted, or another project took its place: the rest becomes a separate shot.
    if (m_running && !m_series.isComplete(m_model))
        beginMeasurement();
    if (store(*sample))
        m_edits.markModified();
    else if (m_calibrating)
        m_unstoredAnswer = sample;
    m_listener.sampleTaken(sample->values, secondsOfNewestSample());
    m_model.emitDataChanged();
}

bool Recorder::store(const SampleLine &sample)
{
    const ChangeScope changes(&m_model); // its end also opens signals that a deletion has left blocked
    return m_series.append(sample.values, m_model);
}

double Recorder::secondsOfNewestSample() const
{
    const SampleList *samples = m_model.measurement(0, m_series.index(0, m_model));
    return samples && !samples->isEmpty() ? (samples->size() - 1) * (m_model.clock() / 1000.0) : 0.0;
}

qint64 Recorder::restartLineClock()
{
    const qint64 elapsed = m_sinceLine.isValid() ? m_sinceLine.elapsed() : 0;
    m_sinceLine.start();
    return elapsed;
}

// --- Calibration ---

void Recorder::requestCalibration()
{
    m_unstoredAnswer.reset();
    m_calibrating = true;
    m_connector.calibrate();
}

void Recorder::calibrate()
{
    m_calibrating = false;
    m_model.blockSignals(false);
    m_edits.markModified();
    {
        const ChangeScope changes(&m_model);
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            m_model.setOffset(sensor, 0.0 - latestValue(sensor)); // never -0.0
    }
    m_unstoredAnswer.reset();
    m_model.emitDataChanged();
}

double Recorder::latestValue(int sensor) const
{
    // Without a shot to land in, the answer itself is the latest value.
    return m_unstoredAnswer ? m_unstoredAnswer->values[static_cast<std::size_t>(sensor)]
                            : m_model.latestValue(0, sensor);
}
