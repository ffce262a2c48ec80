#pragma once

#include "app/theme.h"

/// The style sheets. Each partial sheet also works on a single widget; the application sheet is all of them.
namespace theme {

// clang-format off

inline const QString styleToolBar =
    QStringLiteral("QToolBar {background-color: ") + colorDark
    + QStringLiteral(";border: 0;padding: 0;spacing: 10px;height: 30px;border-bottom: 1px solid ") + colorMedium
    + QStringLiteral(";}QToolBar QWidget {background-color: ") + colorDark
    + QStringLiteral(";margin-bottom: 2px;}QToolBar QToolButton {border: 0px;    font: bold 24px;padding: 5px;color: ")
    + colorBackground
    + QStringLiteral(";}QToolBar QToolButton:disabled {color: ") + colorMedium
    + QStringLiteral(";}QToolBar QLabel {font: bold 24px;color: ") + colorMedium
    + QStringLiteral(";}QToolBar::separator {border: 0;padding: 0;height: 24px;width: 1px;background-color: ")
    + colorBackground
    + QStringLiteral(";}QToolBar QToolButton:checked{    background-color: red;   color: orange;}");

inline const QString styleMenu =
    QStringLiteral("QMenu {color: black; font-family: Roboto;font: 24px;min-height:35px;}"
                   "QMenu::item:selected {color: ") + colorBackground
    + QStringLiteral(";background-color: ") + colorPrimary
    + QStringLiteral(";font: 24px;min-height:35px;}QMenu::icon:selected {background-color: green;}");

inline const QString styleTabWidget =
    QStringLiteral("QTabWidget {border: 2px solid red;background-color: red;}"
                   "QTabBar {font: bold 24px;}QTabBar::tab {background-color: ")
    + colorLight
    + QStringLiteral(";border-left: 7px solid ") + colorDark
    + QStringLiteral(";border-bottom: 1px solid ") + colorMedium
    + QStringLiteral(";font: bold 24px;min-height: 70px;min-width: 150px;color: ") + colorDark
    + QStringLiteral(";text-align: left;}QTabBar::tab:selected {background-color: ") + colorBackground
    + QStringLiteral(";border-left: 10px solid ") + colorPrimary
    + QStringLiteral(";}QTabBar::tab:disabled {background-color: ") + colorLight
    + QStringLiteral(";border-left: 7px solid ") + colorMedium
    + QStringLiteral(";}QTabWidget::pane {border: none;background-color: ") + colorBackground
    + QStringLiteral(";}");

inline const QString styleDoubleSpinBox =
    QStringLiteral("QDoubleSpinBox {min-height: 30px;min-width: 80px;padding: 2px;border: 1px solid ") + colorMedium
    + QStringLiteral(";border-radius: 3px;}"
                     "QDoubleSpinBox:disabled {border-color: #CCC;color: #CCC;}"
                     "QDoubleSpinBox::up-button {subcontrol-origin: border;subcontrol-position: center right;"
                     "width: 30px;height: 30px;image: url(:/icons/up.png);}"
                     "QDoubleSpinBox::up-button:disabled, QDoubleSpinBox::up-button:off "
                     "{image: url(:/icons/up-disabled.png);}"
                     "QDoubleSpinBox::down-button {subcontrol-origin: border;subcontrol-position: center left;"
                     "width: 30px;height: 30px;image: url(:/icons/down.png);}"
                     "QDoubleSpinBox::down-button:disabled, QDoubleSpinBox::down-button:off "
                     "{image: url(:/icons/down-disabled.png);}");

inline const QString styleSpinBox =
    QStringLiteral("QSpinBox {min-height: 30px;min-width: 85px;padding: 0px;border: 1px solid ") + colorMedium
    + QStringLiteral(";border-radius: 3px;}"
                     "QSpinBox:disabled {border-color: #CCC;color: #CCC;}"
                     "QSpinBox::up-button {subcontrol-origin: border;subcontrol-position: center right;"
                     "width: 30px;height: 30px;image: url(:/icons/up.png);}"
                     "QSpinBox::up-button:disabled, QSpinBox::up-button:off {image: url(:/icons/up-disabled.png);}"
                     "QSpinBox::down-button {subcontrol-origin: border;subcontrol-position: center left;"
                     "width: 30px;height: 30px;image: url(:/icons/down.png);}"
                     "QSpinBox::down-button:disabled, QSpinBox::down-button:off "
                     "{image: url(:/icons/down-disabled.png);}");

inline const QString stylePushButton =
    QStringLiteral("QPushButton {border: 0px solid #999;    border-radius: 3px;color: ") + colorBackground
    + QStringLiteral(";background-color: ") + colorPrimary
    + QStringLiteral(";font-size: 16px;min-height: 40px;min-width: 50px;}QPushButton:checked {background-color: ")
    + colorPrimary
    + QStringLiteral(";color: ") + colorBackground
    + QStringLiteral(";}QPushButton:disabled {color: #CCC;background-color: gray;}"
                     "QPushButton:focus {border: 2px solid black;padding: -2px;}");

inline const QString styleColoredButton =
    QStringLiteral("ColoredButton {     border: 0px solid #999;    border-radius: 3px;    padding:   0px;"
                   "    font-size: 20px;    min-height:30px;    min-width: 50px;}ColoredButton:checked { }"
                   "ColoredButton:disabled {    color: #CCC;    background-color: gray; }");

inline const QString styleToolButton =
    QStringLiteral("QToolButton {border: 1px solid #999;    padding:   1px;    color:     black;background-color: ")
    + colorDark
    + QStringLiteral(";font-size: 16px;min-height: 30px;min-width: 60px;}QToolButton:disabled {color: #CCC;}");

inline const QString styleRadioButton =
    QStringLiteral("QRadioButton {border-radius: 3px;min-height: 40px;min-width: 50px;}"
                   "QRadioButton::indicator {width: 0px;height: 0px;}"
                   "QRadioButton:checked {background-color: ") + colorPrimary
    + QStringLiteral(";border: 1px solid ") + colorPrimary
    + QStringLiteral(";color: white;}QRadioButton:unchecked {background-color: ") + colorMedium
    + QStringLiteral(";border: 1px solid ") + colorMedium
    + QStringLiteral(";color: black;}QRadioButton:disabled {color: #CCC;}");

/// What the application sheet holds besides the nine partial sheets.
inline const QString styleMain =
    QStringLiteral("QWidget{ font-family: Roboto;font-size:18px;}QScrollArea {border: 0px;}"
                   "QLabel {color: black; min-height:30px;}"
                   "QLabel#tmpHelpLabel {color: transparent; min-height:30px;}"
                   "QLabel:disabled {color: darkGray; min-height:30px;}QGroupBox {background-color: ")
    + colorBackground
    + QStringLiteral(";color: ") + colorPrimary
    + QStringLiteral(";margin-top: 20px;margin-left: 0px;border: 0px}QGroupBox:disabled {color: darkGray;}"
                     "QLineEdit {color: ") + colorText
    + QStringLiteral(";min-height:30px;}QTextEdit {color: ") + colorText
    + QStringLiteral(";background-color: ") + colorBackground
    + QStringLiteral(";border: 1px solid ") + colorBorder
    + QStringLiteral(";min-height:30px;}QTextEdit:focus {border: 2px solid ") + colorPrimary
    + QStringLiteral(";}NormalDistributionWidget {    color: ") + colorText
    + QStringLiteral(";    background-color: ") + colorBackground
    + QStringLiteral(";    border: 1px solid ") + colorBorder
    + QStringLiteral(";min-height:30px;}"
                     "QScrollBar {border: 1px solid #CCC;min-height: 30px;}"
                     "QScrollBar:horizontal {padding: 0px 30px;}"
                     "QScrollBar::handle {background-color: ") + colorMedium
    + QStringLiteral(";border-radius: 3px;min-width: 30px;min-height: 30px;}"
                     "QScrollBar::sub-line:horizontal {width: 30px;height: 30px;subcontrol-origin: border;"
                     "subcontrol-position: left;}"
                     "QScrollBar::add-line:horizontal {width: 30px;height: 30px;subcontrol-origin: border;"
                     "subcontrol-position: right;}"
                     "QScrollBar::left-arrow {width: 30px;height: 30px;image: url(:/icons/left.png);}"
                     "QScrollBar::right-arrow {width: 30px;height: 30px;image: url(:/icons/right.png);}"
                     "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical {height: 0px;}"
                     "QComboBox { min-height:25px;min-width:25px;padding: 2px;}"
                     "QCheckBox {background-color: ") + colorBackground
    + QStringLiteral(";min-height: 25px;min-width: 25px;padding: 2px;}"
                     "QCheckBox::indicator {min-height: 22px;min-width: 22px;}"
                     "AnalogBarDouble { background-color: red;}OsziWidget {background-color: ") + colorBackground
    + QStringLiteral(";}QFrame {}QFrame[frameShape=\"5\"] {    color: green;}"
                     "QMessageBox {background-color: ") + colorPrimary
    + QStringLiteral(";font-size: 32px;color: white;min-width: 800px;min-height: 600px;padding: 10px;}"
                     "QMessageBox QLabel {font-size: 24px;color: white;min-width: 600px;min-height: 200px;}"
                     "QMessageBox QLabel#qt_msgboxex_icon_label {min-width: 0px;min-height: 0px;}"
                     "QMessageBox QPushButton {font-size: 24px;color: white;min-width: 100px;min-height: 50px;"
                     "border: 1px solid white;padding: 0px 10px;}"
                     "QMessageBox QPushButton:focus {border: 3px solid white;padding: -2px 8px;}"
                     "QHeaderView::section {    background-color: ") + colorPrimary
    + QStringLiteral(";    color: white;    padding-left: 4px;    padding-right: 4px;    border: 1px solid ")
    + colorBorder
    + QStringLiteral(";}");

// clang-format on

/// The sheet of the whole application: the main piece, then the nine partial sheets.
inline const QString styleApplication = styleMain + styleToolBar + styleMenu + styleTabWidget + styleDoubleSpinBox
                                        + styleSpinBox + stylePushButton + styleColoredButton + styleToolButton
                                        + styleRadioButton;

} // namespace theme
