#include "view/terminal/terminalfile.h"

#include <QDateTime>
#include <QTextStream>

bool writeTerminal(QIODevice &target, const QString &text, const QDateTime &savedAt)
{
    QTextStream stream(&target);
    stream.setCodec("UTF-8");
    stream << QStringLiteral("Ventaro - terminal: saved on ") << savedAt.toString(QStringLiteral("dd.MM.yyyy"))
           << QStringLiteral(" at ") << savedAt.toString(QStringLiteral("hh:mm:ss")) << "\n\n"
           << text;
    stream.flush();
    return stream.status() == QTextStream::Ok;
}
