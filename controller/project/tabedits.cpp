#include "controller/project/tabedits.h"

#include "controller/logging.h"
#include "controller/recording/projectedits.h"
#include "model/model.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/sensorscale.h"
#include "view/window/view.h"

#include <algorithm>

TabEdits::TabEdits(View &view, Model &model, ProjectEdits &edits)
    : m_view(view)
    , m_model(model)
    , m_edits(edits)
{}

// --- Project ---

void TabEdits::takeProjectData()
{
    // Read now: the edit may have to wait, and the tab may show something else by then.
    const ProjectData data = m_view.tabProject()->projectData();
    m_edits.apply([this, data] { m_model.setProjectData(data); });
}

void TabEdits::takeComment()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    const QString comment = m_view.tabProject()->comment();
    m_edits.apply([this, comment] { m_model.setComment(comment); });
}

void TabEdits::setPhaseName(int phase, const QString &name)
{
    m_edits.apply([this, phase, name] { m_model.setPhaseName(phase, name); });
}

// --- Oscilloscope ---

void TabEdits::setMarkerAbsolute(int index, int pos_ms)
{
    m_edits.apply([this, index, sample = sampleAt(pos_ms)] { m_model.setVerticalMarkerAbsolute(index, sample); });
}

void TabEdits::setMarkerRelative(int index, int pos_ms)
{
    m_edits.apply([this, index, sample = sampleAt(pos_ms)] { m_model.setVerticalMarkerRelative(index, sample); });
}

/// The tab speaks of time, the model of samples.
int TabEdits::sampleAt(int pos_ms) const
{
    return std::max(0, qRound(static_cast<double>(pos_ms) / m_model.clock()));
}

void TabEdits::setMarkersAbsolute(bool absolute)
{
    m_edits.apply([this, absolute] { m_model.setMarkersAbsolute(absolute); });
}

void TabEdits::setOffset(int position, double offset)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    m_edits.apply([this, position, offset] { m_model.setOffset(position, offset); });
}

void TabEdits::markRangeEdited()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    m_edits.markModified(); // even during a save: that file does not contain the range
}

// --- Sensors ---

void TabEdits::setSensorName(int sensor, const QString &name)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    m_edits.apply([this, sensor, name] { m_model.setSensorName(sensor, name); });
}

void TabEdits::setSensorUnit(int sensor, const QString &unit)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    m_edits.apply([this, sensor, unit] { m_model.setSensorUnit(sensor, unit); });
}

void TabEdits::setSensorColor(int sensor, const QColor &color)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (sensor < 0 || sensor >= kNumSensors || !color.isValid())
        return;
    m_edits.apply([this, sensor, color] { m_model.setColor(static_cast<uint8_t>(sensor), color); });
}

void TabEdits::setSensorLimits(int group, int sensor, double minimum, double maximum)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (!(minimum < maximum))
        return;
    m_edits.apply([this, group, sensor, minimum, maximum] {
        m_model.setSensorMinimum(group, sensor, minimum);
        m_model.setSensorMaximum(group, sensor, maximum);
        // An end without a limit is far beyond what a curve could be seen in.
        if (minimum != SensorLimits::kNoLower && maximum != SensorLimits::kNoUpper)
            m_view.tabOszi()->setCurrentSensorRange(group, sensor, minimum, maximum);
    });
}
