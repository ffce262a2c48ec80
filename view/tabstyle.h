#pragma once

#include <QString>

class QLabel;
class QPushButton;

/// The looks that the tabs share, on top of the application's sheet.
namespace tabstyle {

/// A framed text field in "Courier New".
[[nodiscard]] QString fixedPitchSheet();
/// Makes a label a heading: bold, primary colour.
void makeHeading(QLabel *label);
/// A hint in small grey type that wraps.
void makeHint(QLabel *label);
/// A tall button with a large icon beside its text.
void makeLarge(QPushButton *button, const QString &iconFile);

} // namespace tabstyle
