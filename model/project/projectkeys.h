#pragma once

#include <QString>

/// The keys of the project file.
namespace projectkeys {

inline constexpr char kClock[] = "clock";
inline constexpr char kComment[] = "comment";
inline constexpr char kCorrections[] = "corrections";
inline constexpr char kFileVersion[] = "fileVersion";
inline constexpr char kHardwareVersion[] = "hwVersion";
inline constexpr char kMarkers[] = "markers";
inline constexpr char kMesotraType[] = "mesotraType";
inline constexpr char kClosingForce[] = "paramClosingForce";
inline constexpr char kInjectionTime[] = "paramInjectionTime";
inline constexpr char kPressure[] = "paramPressure";
inline constexpr char kPressTime[] = "paramPressureTime";
inline constexpr char kPhases[] = "phases";
inline constexpr char kCustomer[] = "projectCustomer";
inline constexpr char kDate[] = "projectDate";
inline constexpr char kName[] = "projectName";
inline constexpr char kNumber[] = "projectNumber";
inline constexpr char kUser[] = "projectUser";
inline constexpr char kSensorMaximum[] = "sensor maxValues";
inline constexpr char kSensorMinimum[] = "sensor minValues";
inline constexpr char kFirmwareVersion[] = "swVersion";

/// Belongs to the format, but is neither read nor written.
inline constexpr char kReserved[] = "measurement";

inline constexpr char kViewData[] = "ViewData";
// Within the view data.
inline constexpr char kMarkersAbsolute[] = "checkBoxMarkerAbsolute";
inline constexpr char kOsziMaximum[] = "osziMaxValues";
inline constexpr char kOsziMinimum[] = "osziMinValues";

// Sensors and images count from 0 here, sensors from 1 in the file.
[[nodiscard]] inline QString samples(int sensor)
{
    return QStringLiteral("sensor %1").arg(sensor + 1);
}

[[nodiscard]] inline QString sensorName(int sensor)
{
    return QStringLiteral("sensorName %1").arg(sensor + 1);
}

/// The first image has no number.
[[nodiscard]] inline QString image(int image)
{
    return QStringLiteral("projectImage") + (image == 0 ? QString() : QString::number(image));
}

} // namespace projectkeys
