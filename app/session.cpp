#include "app/session.h"

#include "app/exitsignals.h"
#include "app/logging.h"
#include "model/model.h"
#include "view/window/view.h"

#include <QApplication>
#include <QSplashScreen>
#include <QTimer>

int runSession(QApplication &application, const SessionOptions &options)
{
    QSplashScreen splash;
    showSplash(splash, options.splashTime);

    Model model(projectPath(options.arguments));
    View view(&model);
    ControllerOptions controllerOptions = options.controller;
    controllerOptions.filesGiven = options.arguments.mid(1);
    Controller controller(&model, &view, controllerOptions);

    // Closing the window only asks to quit; the controller decides, as there may be unsaved data.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Ending the desktop session must not depend on an answer, nor be refused by the window's wish to close.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &controller, &Controller::leaveAtOnce);
    const ExitSignals signalsToEnd;
    QObject::connect(&signalsToEnd, &ExitSignals::received, &controller, &Controller::leaveAtOnce);
    view.show();
    if (options.connectAtOnce)
        QTimer::singleShot(0, &view, &View::connectDisconnect);
    const int result = application.exec();
    qCDebug(lcApp) << "event loop returned" << result;
    return 0;
}
