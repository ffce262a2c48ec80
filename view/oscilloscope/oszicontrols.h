#pragma once

#include <QString>

#include <initializer_list>

class QCheckBox;
class QHBoxLayout;
class QPushButton;
class QWidget;

/// How the tab's bars make and place their controls, so that all of them look alike.
namespace oszicontrols {

constexpr int kGap = 4;            ///< pixels between the controls of a group
constexpr int kBarGap = 2 * kGap;  ///< pixels between the groups of a bar
constexpr int kLineGap = 2;        ///< pixels between two lines; small, because the plots need the height
constexpr int kCheckBoxWidth = 30; ///< pixels, of one without text
constexpr int kClearIconSize = 24; ///< pixels

[[nodiscard]] QCheckBox *createCheckBox(const QString &name, bool checked, QWidget *parent);
/// A check box whose caption is another widget: as wide as its indicator.
[[nodiscard]] QCheckBox *createBareCheckBox(const QString &name, bool checked, QWidget *parent);
/// A switch for a mode that is on or off; whether something is shown is a check box.
[[nodiscard]] QCheckBox *createToggle(const QString &name, bool checked, QWidget *parent);
/// A button with the icon of a dustbin.
[[nodiscard]] QPushButton *createClearButton(const QString &name, QWidget *parent);

/// The layout of controls that stay together in one line.
QHBoxLayout *layOutGroup(QWidget *group);
/// A widget that holds the controls in one line.
[[nodiscard]] QWidget *createGroup(std::initializer_list<QWidget *> controls, QWidget *parent);

} // namespace oszicontrols
