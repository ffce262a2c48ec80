#include "app/exitsignals.h"
#include "app/programarguments.h"
#include "app/session.h"
#include "app/startup.h"
#include "app/theme.h"

#include <QApplication>
#include <QTextStream>

#include <cstdio>

namespace {

/// In the encoding of the terminal. The exit status is 0 in any case, as it always is.
int print(const ProgramArguments &programArguments)
{
    QTextStream(programArguments.isMistaken() ? stderr : stdout) << programArguments.answer();
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    ExitSignals::ignoreWriteSignals();
    if (ProgramArguments::isQuestion(argc, argv)) {
        const QCoreApplication application(argc, argv);
        return print(ProgramArguments(QCoreApplication::arguments()));
    }
    followScreenScale();
    QApplication application(argc, argv);
    const ProgramArguments programArguments(QApplication::arguments());
    if (!programArguments.answer().isEmpty())
        return print(programArguments);
    prepareApplication(application);
    if (!checkCopyProtection())
        return 0;

    SessionOptions options;
    options.arguments = programArguments.arguments();
    options.controller.deviceAddress = theme::deviceAddress();
    options.controller.journal.folder = journalFolder();
    options.controller.journal.programVersion = theme::applicationVersion;
    options.connectAtOnce = qEnvironmentVariableIntValue("VENTARO_AUTOCONNECT") == 1;
    return runSession(application, options);
}
