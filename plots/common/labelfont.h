#pragma once

#include <QFont>

/// The font of figures in a small plot: two thirds of the widget's, but readable.
[[nodiscard]] QFont labelFont(const QFont &widgetFont);
