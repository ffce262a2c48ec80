#include "controller/project/tabedits.h"

#include "controller/logging.h"
#include "controller/recording/projectedits.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/sensorscale.h"
#include "view/window/view.h"

#include <algorithm>
#include <array>

namespace {

/// A field of the tab "Projekt" as undo names it. Typing into it is one step.
struct FieldOfProject
{
    const char *key;
    QString (*text)();
    bool (*isSame)(const ProjectData &a, const ProjectData &b);
};

template <auto Field>
bool hasSame(const ProjectData &a, const ProjectData &b)
{
    return a.*Field == b.*Field;
}

const std::array<FieldOfProject, 9> kFields{{
    {"project.name", [] { return TabEdits::tr("Eingabe in \"Projekt\""); }, hasSame<&ProjectData::name>},
    {"project.number", [] { return TabEdits::tr("Eingabe in \"Projektnummer\""); }, hasSame<&ProjectData::number>},
    {"project.user", [] { return TabEdits::tr("Eingabe in \"Bearbeiter\""); }, hasSame<&ProjectData::user>},
    {"project.date", [] { return TabEdits::tr("Eingabe in \"Datum\""); }, hasSame<&ProjectData::date>},
    {"project.customer", [] { return TabEdits::tr("Eingabe in \"Kunde\""); }, hasSame<&ProjectData::customer>},
    {"project.force", [] { return TabEdits::tr("Eingabe in \"Schließkraft\""); }, hasSame<&ProjectData::closingForce>},
    {"project.injection", [] { return TabEdits::tr("Eingabe in \"Einspritzzeit\""); },
     hasSame<&ProjectData::injectionTime>},
    {"project.press", [] { return TabEdits::tr("Eingabe in \"Nachdruckzeit\""); }, hasSame<&ProjectData::pressTime>},
    {"project.pressure", [] { return TabEdits::tr("Eingabe in \"Druck\""); }, hasSame<&ProjectData::pressure>},
}};

/// The first field that differs; the first of all if none does.
const FieldOfProject &changedField(const ProjectData &before, const ProjectData &after)
{
    const auto *found = std::find_if(kFields.begin(), kFields.end(),
                                     [&](const FieldOfProject &field) { return !field.isSame(before, after); });
    return found == kFields.end() ? kFields.front() : *found;
}

QString keyOf(const char *name, int index)
{
    return QLatin1String(name) + QString::number(index);
}

} // namespace

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
    m_edits.apply([this, data] {
        const FieldOfProject &field = changedField(m_model.projectData(), data);
        const EditScope edit(&m_model, field.text, QLatin1String(field.key));
        m_model.setProjectData(data);
    });
}

void TabEdits::takeComment()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    const QString comment = m_view.tabProject()->comment();
    m_edits.apply([this, comment] {
        const EditScope edit(
            &m_model, [] { return tr("Eingabe in \"Kommentar\""); }, QStringLiteral("comment"));
        m_model.setComment(comment);
    });
}

void TabEdits::setPhaseName(int phase, const QString &name)
{
    m_edits.apply([this, phase, name] {
        const EditScope edit(
            &m_model, [phase] { return tr("Name der Phase %1").arg(phase + 1); }, keyOf("phase.", phase));
        m_model.setPhaseName(phase, name);
    });
}

// --- Oscilloscope ---

void TabEdits::setMarkerAbsolute(int index, int pos_ms)
{
    applyToMarker(index,
                  [this, index, sample = sampleAt(pos_ms)] { m_model.setVerticalMarkerAbsolute(index, sample); });
}

void TabEdits::setMarkerRelative(int index, int pos_ms)
{
    applyToMarker(index,
                  [this, index, sample = sampleAt(pos_ms)] { m_model.setVerticalMarkerRelative(index, sample); });
}

void TabEdits::applyToMarker(int index, const std::function<void()> &change)
{
    m_edits.apply([this, index, change] {
        const EditScope edit(
            &m_model, [index] { return tr("Marker %1").arg(index + 1); }, keyOf("marker.", index));
        change();
    });
}

/// The tab speaks of time, the model of samples.
int TabEdits::sampleAt(int pos_ms) const
{
    return std::max(0, qRound(static_cast<double>(pos_ms) / m_model.clock()));
}

void TabEdits::setMarkersAbsolute(bool absolute)
{
    m_edits.apply([this, absolute] {
        const EditScope edit(&m_model, [] { return tr("Umstellung der Marker"); });
        m_model.setMarkersAbsolute(absolute);
    });
}

void TabEdits::setOffset(int position, double offset)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    m_edits.apply([this, position, offset] {
        const QString name = shownSensorName(m_model.sensorDescription(), position);
        const EditScope edit(
            &m_model, [name] { return tr("Offset von %1").arg(name); }, keyOf("offset.", position));
        m_model.setOffset(position, offset);
    });
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
    applyToSensor(sensor, [this, sensor, name] { m_model.setSensorName(sensor, name); });
}

void TabEdits::setSensorUnit(int sensor, const QString &unit)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    applyToSensor(sensor, [this, sensor, unit] { m_model.setSensorUnit(sensor, unit); });
}

void TabEdits::setSensorColor(int sensor, const QColor &color)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (sensor < 0 || sensor >= kNumSensors || !color.isValid())
        return;
    applyToSensor(sensor, [this, sensor, color] { m_model.setColor(static_cast<uint8_t>(sensor), color); });
}

void TabEdits::setSensorLimits(int group, int sensor, double minimum, double maximum)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (!(minimum < maximum))
        return;
    applyToSensor(sensor, [this, group, sensor, minimum, maximum] {
        m_model.setSensorMinimum(group, sensor, minimum);
        m_model.setSensorMaximum(group, sensor, maximum);
        // An end without a limit is far beyond what a curve could be seen in.
        if (minimum != SensorLimits::kNoLower && maximum != SensorLimits::kNoUpper)
            m_view.tabOszi()->setCurrentSensorRange(group, sensor, minimum, maximum);
    });
}

void TabEdits::applyToSensor(int sensor, const std::function<void()> &change)
{
    m_edits.apply([this, sensor, change] {
        const QString name = shownSensorName(m_model.sensorDescription(), sensor);
        const EditScope edit(&m_model, [name] { return tr("Änderung von %1").arg(name); });
        change();
    });
}
