// ventaro-demo FOLDER: drives the program through a recording and leaves pictures, a project, exports and a log in the
// folder. Ends with 0 only if everything that it checks was right.

#include "app/startup.h"
#include "tools/demo/demonstration.h"

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

/// A message handler cannot be given its file in any other way.
QFile &logFile()
{
    static QFile file;
    return file;
}

void writeLog(QtMsgType, const QMessageLogContext &context, const QString &text)
{
    if (logFile().isOpen())
        logFile().write((QLatin1String(context.category) + QLatin1String(": ") + text + QLatin1Char('\n')).toUtf8());
}

/// Removes the files of an earlier demonstration: the program would ask before overwriting them, and they could be
/// mistaken for new ones.
void removeEarlierRun(QDir folder)
{
    const QStringList left = folder.entryList(
        {QStringLiteral("[0-9][0-9]-*.png"), QStringLiteral("demo.*"), QStringLiteral("terminal.txt")}, QDir::Files);
    for (const QString &file : left)
        folder.remove(file);
}

int demonstrate(const QDir &folder)
{
    BoxOptions options;
    options.sendsProjectDescription = true;
    BoxSimulator box(options);
    if (!box.listen()) {
        QTextStream(stderr) << "the simulated box cannot listen: " << box.errorString() << '\n';
        return 1;
    }
    const QStringList failures = Demonstration(box, folder).run();
    for (const QString &failure : failures)
        QTextStream(stderr) << "FAILED: " << failure << '\n';
    if (failures.isEmpty())
        QTextStream(stdout) << "Pictures, project, exports and log are in " << folder.path() << '\n';
    return failures.isEmpty() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir settings; // not the user's own settings
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    // The offscreen platform reports 100 dots per inch, which would enlarge every picture by 4 %.
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", "96");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    followScreenScale();
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments.at(1))) {
        QTextStream(stderr) << "usage: ventaro-demo FOLDER\n";
        return 2;
    }
    const QDir folder(arguments.at(1));
    removeEarlierRun(folder);
    logFile().setFileName(folder.filePath(QStringLiteral("ventaro.log")));
    if (!logFile().open(QIODevice::WriteOnly | QIODevice::Truncate))
        QTextStream(stderr) << "the log cannot be written\n";
    qInstallMessageHandler(writeLog);
    prepareApplication(application);
    const int result = demonstrate(folder);
    qInstallMessageHandler(nullptr);
    return result;
}
