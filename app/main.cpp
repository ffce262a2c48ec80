#include "app/session.h"
#include "app/startup.h"
#include "app/theme.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    followScreenScale();
    QApplication application(argc, argv);
    prepareApplication(application);
    if (!checkCopyProtection())
        return 0;

    SessionOptions options;
    options.arguments = QApplication::arguments();
    options.controller.deviceAddress = theme::deviceAddress();
    options.connectAtOnce = qEnvironmentVariableIntValue("VENTARO_AUTOCONNECT") == 1;
    return runSession(application, options);
}
