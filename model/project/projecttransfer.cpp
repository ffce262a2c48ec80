#include "model/project/projecttransfer.h"

#include "model/arrayindex.h"
#include "model/logging.h"
#include "model/project/project.h"
#include "model/project/projectdocument.h"
#include "model/project/projecteditor.h"

#include <algorithm>

namespace {

template <typename Item, std::size_t Count>
QVector<Item> toList(const std::array<Item, Count> &items)
{
    return QVector<Item>(items.begin(), items.end());
}

void describeProject(ProjectDocument &document, const ProjectSettings &settings)
{
    document.name = settings.data.name;
    document.number = settings.data.number;
    document.user = settings.data.user;
    document.date = settings.data.date;
    document.customer = settings.data.customer;
    document.closingForce = settings.data.closingForce;
    document.injectionTime = settings.data.injectionTime;
    document.pressTime = settings.data.pressTime;
    document.pressure = settings.data.pressure;
    document.clock = settings.clock;
    document.comment = settings.comment;
    document.mesotraType = settings.mesotraType;
    document.hardwareVersion = settings.hardwareVersion;
    document.firmwareVersion = settings.firmwareVersion;
    document.rest.unknown = settings.unknown;
}

void describeView(ProjectDocument &document, const ProjectSettings &settings)
{
    document.viewData.kind = ProjectViewData::Kind::Given;
    document.viewData.markersAbsolute = settings.markersAbsolute;
    document.viewData.osziMinimum = toList(settings.osziMinimum);
    document.viewData.osziMaximum = toList(settings.osziMaximum);
    document.viewData.unknown = settings.unknownInView;
    document.markers = toList(settings.markers);
    document.phases.emplace();
    for (const QString &name : settings.phaseNames)
        document.phases->append(name);
    document.corrections = toList(settings.offsets);
}

// A sensor that the description lacks has an empty name and limits of 0 in the file.
void describeSensors(ProjectDocument &document, const SensorDescription &sensors)
{
    document.sensorNames.fill(QString());
    document.sensorMinimum = QVector<double>(kNumSensors, 0.0);
    document.sensorMaximum = QVector<double>(kNumSensors, 0.0);
    if (sensors.numSensorGroups() == 0)
        return;
    const SensorGroup &group = sensors.sensorGroup(0);
    for (int sensor = 0; sensor < qMin(kNumSensors, group.numSensors()); ++sensor) {
        document.sensorNames[at(sensor)] = group.sensorName(sensor);
        (*document.sensorMinimum)[sensor] = group.sensorMinimum(sensor);
        (*document.sensorMaximum)[sensor] = group.sensorMaximum(sensor);
    }
}

// Calls apply(index, element) for each element of a list, or logs that there is none.
template <typename Items, typename Apply>
void forEachElement(const std::optional<Items> &items, const char *complaint, const Apply &apply)
{
    if (!items) {
        qCDebug(lcModel) << complaint;
        return;
    }
    int index = 0;
    for (const auto &item : *items)
        apply(index++, item);
}

// The field keeps its value where the file has none.
template <typename Value>
void take(const std::optional<Value> &value, Value &field)
{
    if (value)
        field = *value;
}

void applyDescription(const ProjectDocument &document, ProjectSettings &settings)
{
    take(document.name, settings.data.name);
    take(document.number, settings.data.number);
    take(document.user, settings.data.user);
    take(document.date, settings.data.date);
    take(document.customer, settings.data.customer);
    take(document.closingForce, settings.data.closingForce);
    take(document.injectionTime, settings.data.injectionTime);
    take(document.pressTime, settings.data.pressTime);
    take(document.pressure, settings.data.pressure);
    take(document.mesotraType, settings.mesotraType);
    take(document.hardwareVersion, settings.hardwareVersion);
    take(document.firmwareVersion, settings.firmwareVersion);
    take(document.comment, settings.comment);
    take(document.clock, settings.clock);
    settings.unknown = document.rest.unknown;
    settings.unknownInView = document.viewData.unknown;
    settings.clock = qBound(1, settings.clock, ProjectSettings::kMaxClock);
}

SensorGroup *forceFiveSensors(SensorDescription &sensors)
{
    sensors.setNumSensorGroups(1);
    SensorGroup *group = sensors.modifiableSensorGroup(0);
    group->setNumSensors(kNumSensors);
    return group;
}

void useDistanceSensors(SensorDescription &sensors)
{
    qCDebug(lcModel).noquote().nospace() << " file version < 7 -> using defaults (1 group, 5 sensors, distance)";
    SensorGroup *group = forceFiveSensors(sensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        group->setSensorType(sensor, QStringLiteral("Distance"));
}

void applySamples(int sensor, std::optional<SampleRuns> &runs, ShotStore &shots)
{
    if (!runs) {
        qCDebug(lcModel).noquote().nospace() << " jSensor" << sensor + 1 << " is no array!";
        return;
    }
    // The same text for every sensor: whoever searches a log for it finds all of them.
    qCDebug(lcModel).noquote().nospace() << "jSensor1Array.size()=" << runs->size();
    ShotStore::Channel channel;
    channel.reserve(runs->size());
    for (SampleRun &run : *runs) {
        qCDebug(lcModel).noquote().nospace() << "jValues.size()=" << run.count();
        channel.push_back(run.take());
    }
    runs.reset();
    shots.setChannel(sensor, std::move(channel));
}

void applyLabels(const ProjectDocument &document, ProjectEditor &editor)
{
    forEachElement(document.markers, " jMarkers is no array!",
                   [&editor](int index, int position) { editor.setVerticalMarkerAbsolute(index, position); });
    forEachElement(document.phases, " jPhases is no array!",
                   [&editor](int index, const QString &name) { editor.setPhaseName(index, name); });
}

void applySensorLimits(const ProjectDocument &document, ProjectEditor &editor, const SensorGroup &group)
{
    forEachElement(document.sensorMinimum, " jMinValues is no array!", [&](int sensor, double value) {
        editor.setSensorMinimum(0, sensor, value);
        qCDebug(lcModel).noquote().nospace() << " sensor minimum(" << sensor << ")=" << group.sensorMinimum(sensor);
    });
    forEachElement(document.sensorMaximum, " jMaxValues is no array!", [&](int sensor, double value) {
        editor.setSensorMaximum(0, sensor, value);
        qCDebug(lcModel).noquote().nospace() << " sensor maximum(" << sensor << ")=" << group.sensorMaximum(sensor);
    });
}

void applySensors(const ProjectDocument &document, ProjectEditor &editor, SensorDescription &sensors,
                  const char *function)
{
    const SensorGroup &group = *forceFiveSensors(sensors);
    qCDebug(lcModel).noquote().nospace() << function << " numSensorGroups=" << sensors.numSensorGroups()
                                         << " numSensors(0)=" << group.numSensors();
    applySensorLimits(document, editor, group);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const QString usual = QStringLiteral("Sensor %1").arg(sensor + 1);
        editor.setSensorName(sensor, document.sensorNames[at(sensor)].value_or(usual));
    }
    forEachElement(document.corrections, " jCorrections is no array!", [&editor](int sensor, double value) {
        editor.setOffset(sensor, value);
        qCDebug(lcModel).noquote().nospace() << " offset[" << sensor << "]=" << editor.offset(sensor);
    });
}

const char *complaintAbout(ProjectViewData::Kind kind)
{
    switch (kind) {
    case ProjectViewData::Kind::Missing:
        return "jViewData is undefined (key 'ViewData' not found)!";
    case ProjectViewData::Kind::NoObject:
        return "jViewData is no object!";
    default:
        return "jViewDataObj is empty!  (Qt bug? doesn't matter!)";
    }
}

std::array<double, kNumSensors> toRow(const std::optional<QVector<double>> &values, const char *complaint)
{
    std::array<double, kNumSensors> row{};
    forEachElement(values, complaint, [&row](int index, double value) {
        if (index < kNumSensors)
            row[at(index)] = value;
    });
    return row;
}

void applyViewData(const ProjectViewData &viewData, ProjectSettings &settings)
{
    settings.osziMinimum = {};
    settings.osziMaximum = {};
    if (viewData.kind == ProjectViewData::Kind::Given) {
        take(viewData.markersAbsolute, settings.markersAbsolute);
        settings.osziMinimum = toRow(viewData.osziMinimum, "jOsziMinArray is no array!");
        settings.osziMaximum = toRow(viewData.osziMaximum, "jOsziMaxArray is no array!");
    } else {
        qCDebug(lcModel) << complaintAbout(viewData.kind);
    }
    const SensorGroup &group = settings.sensors.sensorGroup(0);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        double &from = settings.osziMinimum[at(sensor)];
        double &to = settings.osziMaximum[at(sensor)];
        if (from == to) {
            qCDebug(lcModel).nospace() << "osziMin and osziMax not given or equal -> use sensor min/max values:" << from
                                       << ", " << to;
            from = group.sensorMinimum(sensor);
            to = group.sensorMaximum(sensor);
        }
    }
}

} // namespace

ProjectDocument settingsDocumentOf(const Project &project)
{
    ProjectDocument document;
    describeProject(document, project.settings);
    describeView(document, project.settings);
    describeSensors(document, project.settings.sensors);
    return document;
}

ProjectDocument documentOf(const Project &project)
{
    ProjectDocument document = settingsDocumentOf(project);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        SampleRuns &runs = document.samples[at(sensor)].emplace();
        runs.reserve(at(project.shots.count(sensor)));
        for (int shot = 0; shot < project.shots.count(sensor); ++shot) {
            const SampleList *samples = project.shots.samples(sensor, shot);
            runs.emplace_back(samples, samples->size());
        }
    }
    return document;
}

void applyDocument(ProjectDocument &document, const QString &absolutePath, ProjectEditor &editor, Project &project,
                   const char *function)
{
    ProjectSettings &settings = project.settings;
    QString version = document.fileVersion.value_or(QString());
    if (version.isEmpty())
        version = QStringLiteral("6.0");
    qCDebug(lcModel).noquote().nospace() << function << " file version=" << version;
    applyDescription(document, settings);
    editor.setCurrentFile(absolutePath);
    if (version.toInt() < ProjectDocument::kFileVersion) // 0 for what is no integer
        useDistanceSensors(settings.sensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        applySamples(sensor, document.samples[at(sensor)], project.shots);
    applyLabels(document, editor);
    applySensors(document, editor, settings.sensors, function);
    applyViewData(document.viewData, settings);
}
