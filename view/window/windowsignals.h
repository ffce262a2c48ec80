#pragma once

class MainWindow;
struct Pages;
struct ViewActions;

/// Turns what the user does with actions and pages into the signals of the window.
namespace windowsignals {

/// Once, when the window has all its pages.
void connectAll(MainWindow *window, const ViewActions &actions, const Pages &pages);

} // namespace windowsignals
