#pragma once

#include <QString>

/// A number with the decimal point of the language in use and without group separators; format and precision as for
/// QString::number(), which is what labels of a fixed format are written with.
[[nodiscard]] QString localNumber(double value, char format, int precision);
