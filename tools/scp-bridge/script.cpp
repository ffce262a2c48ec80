#include "tools/scp-bridge/script.h"

#include "device/protocol/hostaddress.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kConnectTimeout = 10;     // s
constexpr int kAliveInterval = 5;       // s between questions to a silent server
constexpr int kMaxUnansweredAlives = 2; // after that the connection counts as lost

QString unquoted(const QString &text)
{
    const bool quoted = text.size() >= 2 && text.startsWith(QLatin1Char('"')) && text.endsWith(QLatin1Char('"'));
    return quoted ? text.mid(1, text.size() - 2) : text;
}

/// Splits at blanks outside of quotation marks, and removes the quotation marks.
std::optional<QStringList> splitQuoted(const QString &text)
{
    QStringList parts;
    QString part;
    bool quoted = false;
    bool begun = false;
    for (const QChar c : text) {
        if (c == QLatin1Char('"')) {
            quoted = !quoted;
            begun = true;
        } else if (c == QLatin1Char(' ') && !quoted) {
            if (begun)
                parts.append(part);
            part.clear();
            begun = false;
        } else {
            part += c;
            begun = true;
        }
    }
    if (begun)
        parts.append(part);
    return quoted ? std::nullopt : std::make_optional(parts);
}

/// Removes the options at the beginning of the words.
QStringList takeOptions(QStringList &words)
{
    QStringList options;
    while (!words.isEmpty() && words.front().startsWith(QLatin1Char('-')))
        options.append(words.takeFirst());
    return options;
}

QString openHost(const QString &rest, TransferScript &script)
{
    QStringList words = rest.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString account = words.isEmpty() ? QString() : words.takeFirst();
    const int at = account.lastIndexOf(QLatin1Char('@'));
    const int colon = account.indexOf(QLatin1Char(':'));
    if (colon < 1 || at < colon)
        return QStringLiteral("open: user:password@host expected");
    script.user = account.left(colon);
    script.password = account.mid(colon + 1, at - colon - 1);
    script.host = account.mid(at + 1);
    script.acceptsAnyHostKey = words.removeAll(QStringLiteral("-hostkey=*")) > 0;
    if (!words.isEmpty())
        return QStringLiteral("open: unknown option ") + words.front();
    if (script.user.startsWith(QLatin1Char('-')) || !isValidHostAddress(script.host))
        return QStringLiteral("open: this is no user and host: %1@%2").arg(script.user, script.host);
    return {};
}

QString moveFile(const QString &rest, TransferScript &script)
{
    QStringList words = rest.split(QLatin1Char(' '));
    const QStringList options = takeOptions(words);
    script.preservesTimes = options.contains(QLatin1String("-preservetime"));
    if (options.size() != (script.preservesTimes ? 1 : 0))
        return QStringLiteral("unknown option: ") + options.join(QLatin1Char(' '));
    if (script.action == TransferScript::Action::Put && words.size() > 1)
        script.target = words.takeLast();
    script.source = words.join(QLatin1Char(' '));
    const bool hasTarget = script.action == TransferScript::Action::Get || !script.target.isEmpty();
    return script.source.trimmed().isEmpty() || !hasTarget ? QStringLiteral("a file is missing") : QString();
}

/// A path as one word of a batch line, without any special meaning.
QString batchWord(const QString &path)
{
    QString word = QStringLiteral("\"");
    for (const QChar c : path) {
        if (QStringLiteral("\\\"").contains(c))
            word += QLatin1Char('\\');
        word += c;
    }
    return word + QLatin1Char('"');
}

bool hasControlCharacter(const QString &text)
{
    // The upper control characters of Latin-1 are parts of letters here.
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x20 || c.unicode() == 0x7f; });
}

/// A file name in an option, where blanks separate files and "%" stands for something else.
QString optionFile(const QString &fileName)
{
    return QLatin1Char('"') + QString(fileName).replace(QLatin1Char('%'), QLatin1String("%%")) + QLatin1Char('"');
}

QStringList hostKeyOptions(const TransferScript &script, const QString &knownHosts)
{
    if (!script.acceptsAnyHostKey)
        return {QStringLiteral("StrictHostKeyChecking=yes")};
    const QString others = QStringLiteral("GlobalKnownHostsFile=/dev/null");
    if (knownHosts.isEmpty())
        return {QStringLiteral("StrictHostKeyChecking=no"), QStringLiteral("UserKnownHostsFile=/dev/null"), others};
    // A key that has changed ends the run: OpenSSH would go on without a password only.
    return {QStringLiteral("StrictHostKeyChecking=accept-new"),
            QStringLiteral("CheckHostIP=no"),
            QStringLiteral("HashKnownHosts=no"),
            QStringLiteral("UpdateHostKeys=no"),
            QStringLiteral("UserKnownHostsFile=") + optionFile(knownHosts),
            others};
}

QStringList commonArguments(const TransferScript &script, const QString &knownHosts)
{
    QStringList arguments{QStringLiteral("-F"), QStringLiteral("none")};
    const QStringList options = hostKeyOptions(script, knownHosts)
                                + QStringList{QStringLiteral("BatchMode=no"), // else the password is not asked for
                                              QStringLiteral("ConnectTimeout=%1").arg(kConnectTimeout),
                                              QStringLiteral("ServerAliveInterval=%1").arg(kAliveInterval),
                                              QStringLiteral("ServerAliveCountMax=%1").arg(kMaxUnansweredAlives),
                                              QStringLiteral("PreferredAuthentications=password,keyboard-interactive"),
                                              QStringLiteral("PubkeyAuthentication=no"),
                                              QStringLiteral("NumberOfPasswordPrompts=1"),
                                              QStringLiteral("LogLevel=ERROR")};
    for (const QString &option : options)
        arguments << QStringLiteral("-o") << option;
    return arguments;
}

QString account(const TransferScript &script)
{
    return script.user + QLatin1Char('@') + script.host;
}

struct Progress
{
    bool opened = false;
    bool moves = false;
};

/// What is wrong with the command, if anything.
QString applyCommand(const QString &command, TransferScript &script, Progress &progress)
{
    const QString name = command.section(QLatin1Char(' '), 0, 0);
    const QString rest = command.section(QLatin1Char(' '), 1);
    if (hasControlCharacter(command))
        return QStringLiteral("control character in a command");
    if (name == QLatin1String("open") && !std::exchange(progress.opened, true))
        return openHost(rest, script);
    const bool isGet = name == QLatin1String("get");
    if ((isGet || name == QLatin1String("put")) && progress.opened && !std::exchange(progress.moves, true)) {
        script.action = isGet ? TransferScript::Action::Get : TransferScript::Action::Put;
        return moveFile(rest, script);
    }
    return QStringLiteral("command not understood: ") + name;
}

} // namespace

std::optional<QStringList> scriptCommands(const QStringList &arguments)
{
    if (arguments.isEmpty())
        return std::nullopt;
    QStringList parts = arguments;
    if (arguments.size() == 1) {
        const std::optional<QStringList> split = splitQuoted(arguments.front());
        if (!split)
            return std::nullopt;
        parts = *split;
    } else {
        std::transform(parts.begin(), parts.end(), parts.begin(), unquoted);
    }
    if (parts.isEmpty() || parts.takeFirst() != QLatin1String("/command"))
        return std::nullopt;
    return parts;
}

TransferScript parseScript(const QStringList &commands)
{
    TransferScript script;
    Progress progress;
    for (const QString &command : commands) {
        if (command.trimmed() == QLatin1String("exit"))
            break;
        script.error = applyCommand(command, script, progress);
        if (!script.error.isEmpty())
            return script;
    }
    if (!progress.opened || !progress.moves)
        script.error = QStringLiteral("open and then get or put expected");
    return script;
}

QString sftpBatch(const TransferScript &script)
{
    const QString options = script.preservesTimes ? QStringLiteral("-p") : QString();
    return QStringLiteral("put %1 %2 %3\n").arg(options, batchWord(script.source), batchWord(script.target));
}

QStringList sftpArguments(const TransferScript &script, int port, const QString &knownHosts)
{
    return QStringList{QStringLiteral("-P"), QString::number(port)} + commonArguments(script, knownHosts)
           + QStringList{QStringLiteral("-b"), QStringLiteral("-"), account(script)};
}

QStringList sshArguments(const TransferScript &script, int port, const QString &knownHosts)
{
    return QStringList{QStringLiteral("-p"), QString::number(port)} + commonArguments(script, knownHosts)
           + QStringList{QStringLiteral("-s"), account(script), QStringLiteral("sftp")};
}
