#include "app/loghandler.h"

#include <QFile>
#include <QTextStream>

namespace {

QString logLine(QtMsgType type, const QString &text)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("Debug: ") + text;
    case QtWarningMsg:
        return QStringLiteral("Warning: ") + text;
    case QtCriticalMsg:
        return QStringLiteral("Critical: ") + text;
    case QtFatalMsg:
        return QStringLiteral("Fatal: ") + text;
    case QtInfoMsg:
        return QStringLiteral("Info: ") + text;
    }
    return {};
}

} // namespace

void textLogHandler(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    QFile file(QStringLiteral("debug.txt"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return; // nothing may be logged from here
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << logLine(type, text) << Qt::endl;
}
