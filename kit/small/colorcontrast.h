#pragma once

#include <QColor>

/// How well colours can be told apart, and which ones can.
namespace colorcontrast {

/// Of two opaque colours: 1 (equal) to 21 (black on white). Text is readable from 4.5 on, lines and symbols from 3.
[[nodiscard]] double contrast(const QColor &first, const QColor &second);
/// Black or white, whichever contrasts better with an opaque background.
[[nodiscard]] QColor readableOn(const QColor &ground);
/// The colour, darkened just enough for a line of it to be visible on white.
[[nodiscard]] QColor visibleOnWhite(const QColor &color);

} // namespace colorcontrast
