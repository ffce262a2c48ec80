#pragma once

#include <QObject>

#include <functional>

class Model;
class ProjectEdits;
class QColor;
class View;

/// Takes what the user edits in the tabs into the model.
class TabEdits : public QObject
{
    Q_OBJECT

public:
    /// All three must outlive the edits.
    TabEdits(View &view, Model &model, ProjectEdits &edits);

    // --- Project ---
    void takeProjectData();
    void takeComment();
    void setPhaseName(int phase, const QString &name);

    // --- Oscilloscope ---
    /// Positions in ms, as the tab shows them; relative to the marker before.
    void setMarkerAbsolute(int index, int pos_ms);
    void setMarkerRelative(int index, int pos_ms);
    void setMarkersAbsolute(bool absolute);
    void setOffset(int position, double offset);
    /// The range itself is in the model already.
    void markRangeEdited();

    // --- Sensors ---
    void setSensorName(int sensor, const QString &name);
    void setSensorUnit(int sensor, const QString &unit);
    void setSensorColor(int sensor, const QColor &color);
    /// The row of the oscilloscope takes them as its range, as it does with those that a box describes.
    void setSensorLimits(int group, int sensor, double minimum, double maximum);

private:
    [[nodiscard]] int sampleAt(int pos_ms) const;
    void applyToMarker(int index, const std::function<void()> &change);
    void applyToSensor(int sensor, const std::function<void()> &change);

    View &m_view;
    Model &m_model;
    ProjectEdits &m_edits;
};
