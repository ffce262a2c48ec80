#include "app/exitsignals.h"
#include "app/session.h"
#include "app/startup.h"
#include "app/theme.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    ExitSignals::ignoreWriteSignals();
    followScreenScale();
    QApplication application(argc, argv);
    prepareApplication(application);
    if (!checkCopyProtection())
        return 0;

    SessionOptions options;
    options.arguments = QApplication::arguments();
    options.controller.deviceAddress = theme::deviceAddress();
    options.controller.journal.folder = journalFolder();
    options.controller.journal.programVersion = theme::applicationVersion;
    options.connectAtOnce = qEnvironmentVariableIntValue("VENTARO_AUTOCONNECT") == 1;
    return runSession(application, options);
}
