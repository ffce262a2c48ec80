#pragma once

#include "view/sensors/sensorscale.h"

#include <QColor>
#include <QPixmap>
#include <QString>

enum class SensorStatus { NoValue, Stale, Inside, Below, Above };

/// What a sensor shows at one moment; its values with the sensor's offset.
struct SensorReading
{
    SensorStatus status = SensorStatus::NoValue;
    double value = 0.0;   ///< without meaning where there is no value, like the next
    double readOut = 0.0; ///< what the digits say: the value, but not renewed faster than they can be read
    std::optional<HeldRange> held;

    [[nodiscard]] bool hasValue() const { return status != SensorStatus::NoValue; }
    [[nodiscard]] bool isOutside() const { return status == SensorStatus::Below || status == SensorStatus::Above; }
};

/// A stale value is not judged by the limits: nobody knows what holds now.
[[nodiscard]] SensorStatus sensorStatus(const std::optional<double> &value, bool isFresh, const SensorLimits &limits);

/// In the language in use.
[[nodiscard]] QString statusText(SensorStatus status);
[[nodiscard]] QColor statusColor(SensorStatus status);
/// Told apart by shape, not by colour alone: disc, ring, line, and triangles that point where the value went.
[[nodiscard]] QPixmap statusPicture(SensorStatus status, int size, double devicePixelRatio);

/// "min 1,2   max 3,4"; dashes for what is not held.
[[nodiscard]] QString heldText(const std::optional<HeldRange> &held, int decimals);
/// The value, its unit and what is to be said about it, for screen readers and tool tips.
[[nodiscard]] QString readingText(const SensorReading &reading, const QString &unit, int decimals);
