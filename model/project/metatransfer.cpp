#include "model/project/metatransfer.h"

#include "model/arrayindex.h"
#include "model/project/project.h"

#include <utility>

namespace {

SensorUnit unitOf(const SensorGroup &group, int sensor)
{
    return {group.sensorUnit(sensor), group.sensorName(sensor), group.sensorMinimum(sensor),
            group.sensorMaximum(sensor)};
}

int knownSensors(const SensorDescription &sensors)
{
    return sensors.numSensorGroups() == 0 ? 0 : qMin(kNumSensors, sensors.sensorGroup(0).numSensors());
}

} // namespace

ProjectMeta metaOf(const Project &project)
{
    ProjectMeta meta = project.meta;
    const SensorDescription &sensors = project.settings.sensors;
    for (int sensor = 0; sensor < knownSensors(sensors); ++sensor)
        meta.units[at(sensor)] = unitOf(sensors.sensorGroup(0), sensor);
    return meta;
}

void applyMeta(ProjectMeta meta, Project &project)
{
    SensorDescription &sensors = project.settings.sensors;
    for (int sensor = 0; sensor < knownSensors(sensors); ++sensor) {
        SensorGroup *group = sensors.modifiableSensorGroup(0);
        const SensorUnit &known = meta.units[at(sensor)];
        SensorUnit present = unitOf(*group, sensor);
        present.unit = known.unit;
        if (present == known)
            group->setSensorUnit(sensor, known.unit);
    }
    meta.units = {};
    project.meta = std::move(meta);
}
