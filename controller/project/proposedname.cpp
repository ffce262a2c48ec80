#include "controller/project/proposedname.h"

#include <QRegularExpression>

namespace {

constexpr int kMostBytes = 200; // file systems allow 255, and suffixes follow

// Windows takes them for devices, with any suffix.
bool isDevice(const QString &name)
{
    static const QRegularExpression devices(QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(\\.|$)"),
                                            QRegularExpression::CaseInsensitiveOption);
    return devices.match(name).hasMatch();
}

} // namespace

QString proposedFileName(const QString &projectName)
{
    static const QRegularExpression forbidden(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f\\x7f]+"));
    static const QRegularExpression edges(QStringLiteral("^[\\s.\\-~]+|[\\s.]+$"));
    QString name = QString(projectName).replace(forbidden, QStringLiteral(" ")).simplified().remove(edges);
    while (name.toUtf8().size() > kMostBytes)
        name.chop(name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
    name.remove(edges); // a blank where it was cut
    return isDevice(name) ? QLatin1Char('_') + name : name;
}
