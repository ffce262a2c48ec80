#pragma once

#include <QColor>

/// How well colours stand apart from each other, and which ones do.
namespace colorcontrast {

/// Of two opaque colours: 1 (none at all) to 21 (black on white). 4.5 and more reads well, lines and symbols want 3.
[[nodiscard]] double contrast(const QColor &first, const QColor &second);
/// Black or white, whichever stands apart better from an opaque ground.
[[nodiscard]] QColor readableOn(const QColor &ground);
/// The colour, darkened as far as it takes to see a line of it on a white ground.
[[nodiscard]] QColor visibleOnWhite(const QColor &color);

} // namespace colorcontrast
