#pragma once

#include <QString>

class QLabel;
class QPushButton;
class QWidget;

/// The looks that the tabs share, on top of the application's sheet.
namespace tabstyle {

/// What the main window adds to the application's sheet.
[[nodiscard]] QString windowSheet();
/// A framed text field in "Courier New".
[[nodiscard]] QString fixedPitchSheet();
/// Makes a label a heading: bold, primary colour, height in pixels.
void makeHeading(QLabel *label, int pixels = 22);
/// A hint in small grey type that wraps.
void makeHint(QLabel *label);
/// A button with room beside its text.
void makeRegular(QPushButton *button);
/// The looks of a tall button.
[[nodiscard]] QString largeSheet();
/// A tall button with a large icon beside its text.
void makeLarge(QPushButton *button, const QString &iconFile);

/// Fills a tab with one page that scrolls where the window is too small for it; returns the empty page.
[[nodiscard]] QWidget *addScrolledPage(QWidget *tab);

} // namespace tabstyle
