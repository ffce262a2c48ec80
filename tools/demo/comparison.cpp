#include "tools/demo/demonstration.h"

#include <cstring>

namespace {

bool sameBits(const SampleList &a, const SampleList &b)
{
    const auto bytes = static_cast<std::size_t>(a.size()) * sizeof(double);
    return a.size() == b.size() && std::memcmp(a.constData(), b.constData(), bytes) == 0;
}

bool sameSamples(const Model &a, const Model &b, int sensor)
{
    if (a.numChannels(sensor) != b.numChannels(sensor))
        return false;
    for (int shot = 0; shot < a.numChannels(sensor); ++shot)
        if (!sameBits(*a.measurement(sensor, shot), *b.measurement(sensor, shot)))
            return false;
    return true;
}

bool sameSensor(const Model &a, const Model &b, int sensor)
{
    const SensorGroup &first = a.sensorDescription().sensorGroup(0);
    const SensorGroup &second = b.sensorDescription().sensorGroup(0);
    return first.sensorName(sensor) == second.sensorName(sensor)
           && first.sensorMinimum(sensor) == second.sensorMinimum(sensor)
           && first.sensorMaximum(sensor) == second.sensorMaximum(sensor) && a.offset(sensor) == b.offset(sensor)
           && a.osziMinimum(sensor) == b.osziMinimum(sensor) && a.osziMaximum(sensor) == b.osziMaximum(sensor);
}

} // namespace

QString difference(const Model &a, const Model &b)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        if (!sameSamples(a, b, sensor))
            return QStringLiteral("samples of sensor %1").arg(sensor + 1);
        if (!sameSensor(a, b, sensor))
            return QStringLiteral("settings of sensor %1").arg(sensor + 1);
    }
    for (int i = 0; i < Model::kNumMarkers; ++i)
        if (a.verticalMarker(i) != b.verticalMarker(i))
            return QStringLiteral("marker %1").arg(i + 1);
    for (int i = 0; i < Model::kNumPhases; ++i)
        if (a.phaseName(i) != b.phaseName(i))
            return QStringLiteral("phase %1").arg(i + 1);
    if (a.projectData() != b.projectData() || a.comment() != b.comment() || a.clock() != b.clock()
        || a.markersAbsolute() != b.markersAbsolute())
        return QStringLiteral("project data");
    return {};
}
