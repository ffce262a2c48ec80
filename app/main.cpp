#include "app/commandline.h"
#include "app/session.h"
#include "app/startup.h"
#include "app/theme.h"

#include <QApplication>
#include <QTextStream>

#include <cstdio>

namespace {

/// In the encoding of the terminal. The exit status is 0 in any case, as it always is.
int print(const CommandLine &commandLine)
{
    QTextStream(commandLine.isMistaken() ? stderr : stdout) << commandLine.answer();
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (CommandLine::isQuestion(argc, argv)) {
        const QCoreApplication application(argc, argv);
        return print(CommandLine(QCoreApplication::arguments()));
    }
    followScreenScale();
    QApplication application(argc, argv);
    const CommandLine commandLine(QApplication::arguments());
    if (!commandLine.answer().isEmpty())
        return print(commandLine);
    prepareApplication(application);
    if (!checkCopyProtection())
        return 0;

    SessionOptions options;
    options.arguments = commandLine.arguments();
    options.controller.deviceAddress = theme::deviceAddress();
    options.connectAtOnce = qEnvironmentVariableIntValue("VENTARO_AUTOCONNECT") == 1;
    return runSession(application, options);
}
