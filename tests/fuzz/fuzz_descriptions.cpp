#include "device/protocol/descriptions.h"
#include "tests/fuzz/fuzz.h"

#include <cmath>

// What the box says about itself, its sensors and its project.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = line(data, size);
    const DeviceDescription device = parseDeviceDescription(text);
    for (const auto &group : device.groups)
        REQUIRE(static_cast<std::size_t>(group.channels.size()) <= size);
    if (const auto project = parseProjectDescription(text)) {
        REQUIRE(std::isfinite(project->data.injectionTime));
        REQUIRE(std::isfinite(project->data.pressTime));
    }
    const ReceivedSensors received = parseSensorDescription(text);
    REQUIRE(received.numGroups >= 0 && received.numGroups <= 9);
    SensorDescription sensors;
    applySensorDescription(received, sensors);
    REQUIRE(sensors.numSensorGroups() >= 1);
    const SensorGroup &group = sensors.sensorGroup(0);
    REQUIRE(group.numSensors() >= kNumSensors);
    for (int i = 0; i < group.numSensors(); ++i) {
        REQUIRE(std::isfinite(group.sensorMinimum(i)));
        REQUIRE(std::isfinite(group.sensorMaximum(i)));
    }
    return 0;
}
