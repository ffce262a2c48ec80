#pragma once

#include "view/sensors/sensorscale.h"

#include <QColor>
#include <QPixmap>
#include <QString>

enum class SensorStatus { NoValue, Stale, Inside, Below, Above };

/// What is shown of a sensor at one moment; its values include the sensor's offset.
struct SensorReading
{
    SensorStatus status = SensorStatus::NoValue;
    double value = 0.0;   ///< undefined without a value, like the next
    double readOut = 0.0; ///< for the digits: the value, updated no faster than they can be read
    std::optional<HeldRange> held;

    [[nodiscard]] bool hasValue() const { return status != SensorStatus::NoValue; }
    [[nodiscard]] bool isOutside() const { return status == SensorStatus::Below || status == SensorStatus::Above; }
};

/// A stale value is not compared with the limits: the current one is unknown.
[[nodiscard]] SensorStatus sensorStatus(const std::optional<double> &value, bool isFresh, const SensorLimits &limits);

/// In the current language.
[[nodiscard]] QString statusText(SensorStatus status);
[[nodiscard]] QColor statusColor(SensorStatus status);
/// Different in shape, not only in colour: disc, ring, line, and triangles that point to where the value is.
[[nodiscard]] QPixmap statusPicture(SensorStatus status, int size, double devicePixelRatio);

/// "min 1,2   max 3,4"; dashes if nothing is held.
[[nodiscard]] QString heldText(const std::optional<HeldRange> &held, int decimals);
/// The value, its unit and its status in words, for screen readers and tool tips.
[[nodiscard]] QString readingText(const SensorReading &reading, const QString &unit, int decimals);
