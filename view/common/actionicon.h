#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

/// The icon ":/icons/<file>", its shape filled with one colour; the same in the disabled mode, since the colour
/// tells the state. A null icon if there is no such file.
[[nodiscard]] QIcon actionIcon(const QString &file, const QColor &tint);
