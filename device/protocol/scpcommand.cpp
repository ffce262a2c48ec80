#include "device/protocol/scpcommand.h"

#include "device/protocol/hostaddress.h"

#include <QDate>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString kDirectoryPrefix = QStringLiteral("dir-");
constexpr int kDirectoryLength = 12;
constexpr int kDateLength = 10;

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool areAsciiDigits(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isAsciiDigit);
}

/// Ends a word or a command of the tool's language, or cannot be passed on at all.
bool isForbidden(QChar c)
{
    return c.isSpace() || c == QLatin1Char('"') || c.category() == QChar::Other_Control
           || c.category() == QChar::Other_Format || c.category() == QChar::Separator_Line
           || c.category() == QChar::Separator_Paragraph;
}

bool isWord(const QString &text)
{
    return !text.isEmpty() && std::none_of(text.begin(), text.end(), isForbidden);
}

bool isFileWord(const QString &text)
{
    const auto isWildcard = [](QChar c) { return c == QLatin1Char('*') || c == QLatin1Char('?'); };
    return isWord(text) && std::none_of(text.begin(), text.end(), isWildcard);
}

QString openCommand(const ScpAccount &account)
{
    return QLatin1String("/command \"open ") + account.user + QLatin1Char(':') + account.password + QLatin1Char('@')
           + account.address;
}

} // namespace

QString ScpCommand::commandLine() const
{
    QString tool = program; // as it would be typed under Windows
    return tool.replace(QLatin1Char('/'), QLatin1Char('\\')) + QLatin1Char(' ') + arguments;
}

QString scpToolFile(const QString &applicationDirectory)
{
    return applicationDirectory + QLatin1String("/winscp/winscp.com");
}

QString scpFetchArguments(const ScpAccount &account, const QString &directory)
{
    return openCommand(account) + QLatin1String(" -hostkey=* \" \"get -preservetime /media/usbstick/data/") + directory
           + QLatin1String("\" \"exit\"");
}

QString scpUploadArguments(const ScpAccount &account, const QString &fileName)
{
    return openCommand(account) + QLatin1String(" -hostkey=* \" \"put -preservetime ") + fileName
           + QLatin1String(" /media/usbstick/\" \"exit\"");
}

std::optional<QString> blackBoxDirectory(const QString &date)
{
    const QString day = date.left(2);
    const QString month = date.mid(3, 2);
    const QString year = date.mid(6);
    const bool isWritten = date.size() == kDateLength && date.at(2) == QLatin1Char('.')
                           && date.at(5) == QLatin1Char('.') && areAsciiDigits(day + month + year);
    if (!isWritten || !QDate::isValid(year.toInt(), month.toInt(), day.toInt()))
        return std::nullopt;
    return kDirectoryPrefix + year + month + day;
}

bool isBlackBoxDirectory(const QString &name)
{
    return name.size() == kDirectoryLength && name.startsWith(kDirectoryPrefix)
           && areAsciiDigits(name.mid(kDirectoryPrefix.size()));
}

bool isUsableLogin(const ScpAccount &account)
{
    // Both separate the user from what follows in the tool's own notation.
    const bool ambiguous = account.user.contains(QLatin1Char(':')) || account.user.contains(QLatin1Char('@'));
    return isWord(account.user) && !ambiguous && isWord(account.password);
}

bool isUsableAccount(const ScpAccount &account)
{
    return isUsableLogin(account) && isValidHostAddress(account.address);
}

std::optional<ScpSource> scpSource(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!isFileWord(file.fileName()))
        return std::nullopt;
    if (isFileWord(fileName) && !fileName.startsWith(QLatin1Char('-')))
        return ScpSource{fileName, {}};
    // Behind its folder, a name that begins with "-" is not taken for an option.
    return ScpSource{QLatin1String("./") + file.fileName(), file.absolutePath()};
}
