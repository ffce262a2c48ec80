#pragma once

#include "model/sensordescription.h"

#include <QString>

#include <array>

/// Which sensors the data logger shows.
using LoggerColumns = std::array<bool, kNumSensors>;

/// The two lines above the data: "time" and one name each for sensors 1 and 2 if they are shown, then a rule. The
/// other sensors get no headline. Separated by tabulators, no line feed at the end.
[[nodiscard]] QString loggerHeadlineText(const LoggerColumns &columns);
/// The time in seconds with three decimals, then the values of the columns shown, as the current locale writes them.
[[nodiscard]] QString loggerSampleText(double seconds, const std::array<double, kNumSensors> &values,
                                       const LoggerColumns &columns);
