#pragma once

#include <QColor>

/// The kit's named colours, for themes.
namespace QtMaterialPalette {

[[nodiscard]] QColor cyan700();
[[nodiscard]] QColor grey100();
[[nodiscard]] QColor grey300();
[[nodiscard]] QColor grey500();
[[nodiscard]] QColor red700(); ///< errors
[[nodiscard]] QColor white();

// Black, increasingly transparent.
[[nodiscard]] QColor lightBlack(); ///< secondary text and icons
[[nodiscard]] QColor minBlack();   ///< disabled text and icons
[[nodiscard]] QColor faintBlack(); ///< disabled surfaces and dividers

} // namespace QtMaterialPalette
