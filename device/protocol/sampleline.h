#pragma once

#include "model/sensordescription.h"

#include <QString>

#include <array>
#include <optional>

/// The fields of one sample line. All values are finite; what was missing, unparsable or not finite is 0.
struct SampleLine
{
    std::array<double, kNumSensors> values{}; ///< fields 1 to 5, in the sensors' units
    int numFields = 0;                        ///< all fields, the leading one and empty ones included
};

/// Splits at ";" and converts as QString::toDouble does. Nothing for fewer than three fields.
/// Each value is divided by `divisor`, which must not be 0.
[[nodiscard]] std::optional<SampleLine> parseSampleLine(const QString &message, double divisor = 1.0);
