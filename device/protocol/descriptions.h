#pragma once

#include "model/devicedescription.h"
#include "model/projectdata.h"
#include "model/sensordescription.h"
#include "model/verticalmarkers.h"

#include <QString>
#include <QVector>

#include <array>
#include <optional>

/// What the box says about itself, its sensors and its project, each in one line of elements and attributes.

/// The text between the quotation marks behind `key` and an equals sign, searched from `from` on. A missing key or
/// quotation mark yields the text between whatever positions the searches give, a missing closing one the rest of the
/// line.
[[nodiscard]] QString attributeText(const QString &line, const QString &key, int from = 0);

/// Groups and channels in order of appearance; at most what fits into one line.
[[nodiscard]] DeviceDescription parseDeviceDescription(const QString &line);

struct ReceivedProject
{
    ProjectData data;
    std::array<QString, kNumCyclePhases> phases;
};

/// Nothing if the line contains no "<projectDescription".
[[nodiscard]] std::optional<ReceivedProject> parseProjectDescription(const QString &line);

/// What a sensor description says, as announced; applySensorDescription() decides what is usable.
struct ReceivedSensors
{
    struct Sensor
    {
        QString name;
        QString type;
        QString unit; ///< every "Â" (half of a UTF-8 degree sign) removed
        double minimum = 0.0;
        double maximum = 0.0;
    };
    struct Group
    {
        int position = 0;
        QString name;
        int numSensors = 0; ///< 0 to 9; may differ from sensors.size()
        QVector<Sensor> sensors;
    };

    int numGroups = 0; ///< 0 to 9; may differ from groups.size()
    QVector<Group> groups;
};

[[nodiscard]] ReceivedSensors parseSensorDescription(const QString &line);

/// Writes the names, types, units and limits into `description` and resizes it to the announced counts, but never
/// below one group with kNumSensors sensors. Colours and latest values of sensors that stay are kept; positions
/// outside the announced counts are ignored.
void applySensorDescription(const ReceivedSensors &received, SensorDescription &description);
