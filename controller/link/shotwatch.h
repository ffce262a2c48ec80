#pragma once

#include "controller/desk.h"
#include "controller/link/missinglines.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>

class Recorder;

/// Follows the recording in progress: since when, how many lines, and how many are missing, which it keeps with the
/// shot at its end.
class ShotWatch : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the watch.
    ShotWatch(const Desk &desk, const Recorder &recorder);

    /// A recording has begun, with this period in ms; ends the one before.
    void begin(int period);
    void noteSample() { m_lines.noteLine(m_clock.elapsed()); }
    void setPeriod(int period) { m_lines.setPeriod(period); }
    void noteStopRequest() { m_lines.noteStopRequest(m_clock.elapsed()); }
    /// The box has stopped, or the link to it has ended.
    void finish();

    /// Invalid while nothing is recorded.
    [[nodiscard]] QDateTime since() const { return m_since; }
    /// Lines of the recording in progress or of the last one.
    [[nodiscard]] int lines() const { return m_lines.count(); }
    /// Number of lines missing in the last shot that ended; 0 if that is not worth a word, or a new one has begun.
    [[nodiscard]] int lastMissing() const { return m_lastMissing; }
    /// The user has seen it.
    void forgetMissing() { m_lastMissing = 0; }

private:
    void keepMissing();

    Desk m_desk;
    const Recorder &m_recorder;
    MissingLines m_lines;
    QElapsedTimer m_clock;
    QDateTime m_since;
    quint64 m_shot = 0; // the id of the first sensor's measurement
    int m_lastMissing = 0;
};
