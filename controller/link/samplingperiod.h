#pragma once

#include "controller/desk.h"

#include <QObject>

class MesotraConnector;
class ProjectEdits;
class Recorder;

/// Keeps the sampling period of the box and that of the project the same.
class SamplingPeriod : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the period.
    SamplingPeriod(const Desk &desk, MesotraConnector &connector, ProjectEdits &edits, const Recorder &recorder);

    /// Asks the box that has just been connected for 100 ms.
    void begin();
    /// After begin() and what else every connection begins with: if the project holds measurements, it gets its own
    /// period back, and the box is asked for that.
    void restore();
    /// What the box was last asked for, or has reported, in ms; 0: unknown.
    [[nodiscard]] int boxPeriod() const { return m_boxPeriod; }
    /// Asks the box once more for what it has, as a sign of life.
    void repeat();
    /// The user chose one by its label, such as "100ms". Takes effect with the echo of the box.
    void choose(const QString &label);
    void takeEcho(const QString &message);
    /// Another project is in the model: what is recorded into it has to be sampled with its period.
    void matchProject();

signals:
    /// What the box was last asked for, or has reported, in ms.
    void boxPeriodChanged(int milliseconds);

private:
    void setBoxPeriod(int milliseconds);

    Desk m_desk;
    MesotraConnector &m_connector;
    ProjectEdits &m_edits;
    const Recorder &m_recorder;
    int m_boxPeriod = 0;            // ms; 0: unknown
    int m_ownPeriod = 0;            // of a project with measurements, between begin() and restore()
    bool m_isRepeated = false;      // the echo of what the box has is still to come and changes nothing
    bool m_isFirstReplaced = false; // the echo of the first period is still to come and says nothing
};
