#pragma once

class QFont;

/// The height of the margins above and below the plot area, in pixels: room for one line of labels in this font.
[[nodiscard]] int labelMargin(const QFont &font);
