#include "device/protocol/scpoutput.h"

#include <QRegularExpression>

namespace {

const QString kRefused = QStringLiteral("the host has another key than before and is refused: ");

QRegularExpressionMatch firstLine(const char *pattern, const QString &output)
{
    const QRegularExpression line(QLatin1Char('^') + QLatin1String(pattern) + QLatin1Char('$'),
                                  QRegularExpression::MultilineOption);
    return line.match(output);
}

} // namespace

QString folderSizeLine(const ScpFolderSize &size)
{
    return QStringLiteral("%1 files, %2 to fetch").arg(size.files).arg(size.missing);
}

std::optional<ScpFolderSize> folderSizeOf(const QString &output)
{
    const QRegularExpressionMatch match = firstLine("(\\d{1,9}) files, (\\d{1,9}) to fetch", output);
    if (!match.hasMatch())
        return std::nullopt;
    return ScpFolderSize{match.captured(1).toInt(), match.captured(2).toInt()};
}

QString changedKeyLine(const ScpChangedKey &key)
{
    return QStringLiteral("host key changed: %1: %2 -> %3").arg(key.host, key.before, key.now);
}

std::optional<ScpChangedKey> changedKeyOf(const QString &output)
{
    const QRegularExpressionMatch match = firstLine("host key changed: (\\S+): (.*) -> (.+)", output);
    if (!match.hasMatch())
        return std::nullopt;
    return ScpChangedKey{match.captured(1), match.captured(2), match.captured(3)};
}

QString refusedKeyText(const QString &host)
{
    return kRefused + host;
}

bool isRefusedKey(const QString &errorOutput)
{
    return errorOutput.contains(kRefused);
}
