#pragma once

#include "model/devicedescription.h"
#include "model/projectdata.h"
#include "model/sensordescription.h"
#include "model/verticalmarkers.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>
#include <optional>

/// The grammar of the lines that the box sends. Everything here is pure: text in, value out. Lines are what
/// MesotraConnector delivers, one byte a character, the line feed still at the end. Nothing here trusts the text.

enum class MessageKind {
    Sample,            ///< begins with a decimal digit or "-"
    RunStarted,        ///< "run=1…"
    RunStopped,        ///< "run=0…"
    ClockEcho,         ///< "t=…"
    DeviceDescription, ///< "<deviceDescription…"
    SensorDescription, ///< "<sensorDescription…"
    ListBegin,         ///< "list {…"
    ListEnd,           ///< "} list…"
    Other
};

/// What a line is, by its first characters, case-sensitively; an empty one is Other.
[[nodiscard]] MessageKind classify(const QString &message);

/// The fields of one sample line. All values are finite; what was missing, unparsable or not finite is 0.
struct SampleLine
{
    std::array<double, kNumSensors> values{}; ///< fields 1 to 5, in the sensors' units
    int numFields = 0;                        ///< all fields, the leading one and empty ones included
};

/// Splits at ";" and converts as QString::toDouble does. Nothing for fewer than three fields.
/// Each value is divided by `divisor`, which must not be 0.
[[nodiscard]] std::optional<SampleLine> parseSampleLine(const QString &message, double divisor = 1.0);

/// The number behind the first "t=", in milliseconds; any int, so the caller checks the range. Nothing if it is no int.
[[nodiscard]] std::optional<int> parseClockEcho(const QString &message);

/// True for the entries "." and "..", with or without white space around them.
[[nodiscard]] bool isDirectoryItself(const QString &message);

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

/// Nothing if the line holds no "<projectDescription".
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
