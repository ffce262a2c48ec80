#pragma once

#include "app/startup.h"
#include "controller/controller.h"

#include <QStringList>

class QApplication;

/// What a run of the program takes from outside.
struct SessionOptions
{
    QStringList arguments;                             ///< the program's name first
    ControllerOptions controller;                      ///< with the address offered when connecting
    bool connectAtOnce = false;                        ///< press "Verbinden" as soon as the window is shown
    std::chrono::milliseconds splashTime{kSplashTime}; ///< blocks
};

/// Everything from the splash screen to the end of the event loop, for an application that is prepared. Returns the
/// program's exit status: always 0, whatever the event loop returned.
[[nodiscard]] int runSession(QApplication &application, const SessionOptions &options);
