#include "controller/sensornews.h"

#include "view/oscilloscope/taboszilloscope.h"

#include <algorithm>

bool isSavedAlike(const SensorDescription &a, const SensorDescription &b)
{
    if (a.numSensorGroups() == 0 || b.numSensorGroups() == 0)
        return a.numSensorGroups() == b.numSensorGroups();
    const SensorGroup &left = a.sensorGroup(0);
    const SensorGroup &right = b.sensorGroup(0);
    // The files have room for five sensors and for nothing but these properties of them.
    bool alike = left.numSensors() == right.numSensors();
    for (int i = 0; alike && i < std::min(kNumSensors, left.numSensors()); ++i)
        alike = left.sensorName(i) == right.sensorName(i) && left.sensorMinimum(i) == right.sensorMinimum(i)
                && left.sensorMaximum(i) == right.sensorMaximum(i) && left.sensorUnit(i) == right.sensorUnit(i);
    return alike;
}

bool isAnySensorNamed(const SensorDescription &description)
{
    if (description.numSensorGroups() == 0)
        return false;
    const SensorGroup &group = description.sensorGroup(0);
    bool named = false;
    for (int i = 0; !named && i < group.numSensors(); ++i)
        named = !group.sensorName(i).isEmpty();
    return named;
}

void showNewLimits(const SensorDescription &before, const SensorDescription &now, TabOszilloscope &tab)
{
    const bool known = before.numSensorGroups() > 0;
    const SensorGroup &group = now.sensorGroup(0);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const double minimum = group.sensorMinimum(sensor);
        const double maximum = group.sensorMaximum(sensor);
        const bool same = known && sensor < before.sensorGroup(0).numSensors()
                          && before.sensorGroup(0).sensorMinimum(sensor) == minimum
                          && before.sensorGroup(0).sensorMaximum(sensor) == maximum;
        if (!same && minimum < maximum)
            tab.setCurrentSensorRange(0, sensor, minimum, maximum);
    }
}
