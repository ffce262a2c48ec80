#pragma once

#include <QString>

/// A number as the user reads it, with the decimal point of the language in use and without group separators; format
/// and precision as for QString::number().
[[nodiscard]] QString localNumber(double value, char format, int precision);
