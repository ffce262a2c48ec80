#include "model/project/project.h"

#include "model/arrayindex.h"
#include "model/indexcheck.h"
#include "model/logging.h"

#include <utility>

void Project::clearDescription()
{
    settings.data = ProjectData();
    settings.hardwareVersion.clear();
    settings.firmwareVersion = QStringLiteral("8.0");
    settings.comment.clear();
    settings.clock = 100;
    settings.unknown.clear();
    settings.unknownInView.clear();
    meta = ProjectMeta();
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        colors[at(sensor)] = defaultSensorColor(sensor);
}

void Project::clearSensors(const char *function)
{
    settings.sensors = SensorDescription();
    settings.sensors.setNumSensorGroups(1);
    SensorGroup *group = settings.sensors.modifiableSensorGroup(0);
    group->setNumSensors(kNumSensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        group->setSensorName(sensor, QString());
        qCDebug(lcModel).noquote().nospace()
            << function << " min=" << group->sensorMinimum(sensor) << " max=" << group->sensorMaximum(sensor);
    }
}

void Project::clearImages(const char *function)
{
    qCDebug(lcModel).noquote().nospace() << function << " clearing images";
    images.clear();
}

void Project::clearShots()
{
    shots.clear();
    meta.clearShots();
}

bool Project::removeShot(int shot)
{
    if (!shots.remove(shot))
        return false;
    meta.removeShot(shot);
    return true;
}

void Project::resetPhaseNames(const PhaseNames &defaults)
{
    defaultPhaseNames = defaults;
    settings.phaseNames = defaults;
}

bool Project::retranslatePhaseNames(const PhaseNames &defaults)
{
    const PhaseNames before = std::exchange(defaultPhaseNames, defaults);
    bool changed = false;
    for (std::size_t phase = 0; phase < before.size(); ++phase) {
        QString &name = settings.phaseNames[phase];
        // A name that the user chose is no longer the default one and stays.
        if (name == before[phase])
            changed = std::exchange(name, defaults[phase]) != defaults[phase] || changed;
    }
    return changed;
}

SensorGroup *Project::groupWith(int group, int sensor, const char *function)
{
    SensorGroup *found = settings.sensors.modifiableSensorGroup(group);
    return found && isIndex(sensor, at(found->numSensors()), function) ? found : nullptr;
}
