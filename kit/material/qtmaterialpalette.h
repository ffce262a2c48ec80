#pragma once

#include <QColor>

/// The named colours of the kit that themes are made of.
namespace QtMaterialPalette {

[[nodiscard]] QColor cyan700();
[[nodiscard]] QColor grey100();
[[nodiscard]] QColor grey300();
[[nodiscard]] QColor grey500();
[[nodiscard]] QColor red700(); ///< errors
[[nodiscard]] QColor white();

// Black, more and more transparent.
[[nodiscard]] QColor lightBlack(); ///< secondary text and icons
[[nodiscard]] QColor minBlack();   ///< disabled text and icons
[[nodiscard]] QColor faintBlack(); ///< disabled surfaces and dividers

} // namespace QtMaterialPalette
