#include "simulator/boxsimulator.h"
#include "simulator/commandline.h"
#include "simulator/inputwatch.h"

#include <QCoreApplication>
#include <QTextStream>

#include <optional>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const CommandLine line = parseCommandLine(QCoreApplication::arguments());
    if (!line.help.isEmpty()) {
        QTextStream(stdout) << line.help;
        return 0;
    }
    if (!line.error.isEmpty()) {
        QTextStream(stderr) << line.error << '\n';
        return 2;
    }
    BoxSimulator box(line.box);
    if (!box.listen(line.address, line.port)) {
        QTextStream(stderr) << "cannot listen on " << line.address.toString() << ':' << line.port << ": "
                            << box.errorString() << '\n';
        return 1;
    }
    std::optional<InputWatch> watch;
    if (line.untilInputCloses)
        watch.emplace();
    // A script that asked for any free port can read it here.
    QTextStream(stdout) << "listening on " << box.address().toString() << ':' << box.port() << Qt::endl;
    return QCoreApplication::exec();
}
