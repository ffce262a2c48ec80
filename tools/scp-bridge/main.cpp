// Does what the SCP tool of the other platform does, with OpenSSH's ssh, sftp and sshpass:
//
//     winscp.com '/command "open user:password@host -hostkey=* " "get -preservetime /remote/folder" "exit"'
//
// Ends with 0 after a complete transfer and with 1 otherwise. Of a folder, files that are there already with the same
// size and time are not fetched again. A key of a host is remembered when it is first seen; one that has changed is
// announced. Environment variables:
//
//     VENTARO_SCP_PORT             another port than 22
//     VENTARO_SCP_KNOWN_BOXES      another file for the keys than that in the program's data folder
//     VENTARO_SCP_REFUSE_NEW_KEY   1: a host whose key has changed is refused

#include "device/protocol/scpoutput.h"
#include "tools/scp-bridge/earlyarguments.h"
#include "tools/scp-bridge/folderdownload.h"
#include "tools/scp-bridge/hostkeys.h"
#include "tools/scp-bridge/script.h"
#include "tools/scp-bridge/sshprocess.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <functional>
#include <sys/stat.h>

namespace {

constexpr int kDefaultPort = 22;
constexpr int kHighestPort = 65535;

struct Result
{
    bool isDone = false;
    QByteArray errors;
};

void say(FILE *stream, const QByteArray &line)
{
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stream);
    std::fputc('\n', stream);
    std::fflush(stream); // whoever waits for it shows it
}

int fail(const QString &text)
{
    say(stderr, text.toLatin1());
    return 1;
}

/// 0 if the environment variable is not a port.
int portFromEnvironment()
{
    if (!qEnvironmentVariableIsSet("VENTARO_SCP_PORT"))
        return kDefaultPort;
    const int port = qEnvironmentVariableIntValue("VENTARO_SCP_PORT");
    return port > 0 && port <= kHighestPort ? port : 0;
}

/// Below the current folder, as the tool of the other platform does it.
QByteArray makeTarget(const TransferScript &script)
{
    QByteArray name = script.source.toLatin1();
    while (name.endsWith('/'))
        name.chop(1);
    name = name.mid(name.lastIndexOf('/') + 1);
    if (name.isEmpty() || name == "." || name == "..")
        return {};
    (void)::mkdir(name.constData(), 0777); // what cannot be written there will say why
    return name;
}

/// `linked` is called once the host has been recognised and lets us in.
Result get(const TransferScript &script, int port, const QString &knownHosts, const std::function<void()> &linked)
{
    const QByteArray target = makeTarget(script);
    if (target.isEmpty())
        return {false, "this is no folder: " + script.source.toLatin1()};
    SshProcess ssh(QStringLiteral("ssh"), sshArguments(script, port, knownHosts), script.password);
    if (!ssh.begin())
        return {false, ssh.errorText()};
    FolderDownload download(
        script.source.toLatin1(), target,
        {[&ssh](const QByteArray &bytes) { ssh.write(bytes); }, [](const QByteArray &line) { say(stdout, line); }});
    download.begin();
    QByteArray arrived = ssh.waitForOutput();
    if (!arrived.isEmpty())
        linked();
    while (!arrived.isEmpty()) { // or the link has ended
        download.take(arrived);
        if (download.isOver())
            break;
        arrived = ssh.waitForOutput();
    }
    ssh.closeWriteChannel(); // which ends the service
    const bool isDone = download.isOver() && download.errors().isEmpty();
    if (download.isOver() && !isDone)
        ssh.terminate();        // it may have more to send than anybody wants
    (void)ssh.waitForSuccess(); // its own end says nothing about the files
    if (isDone)
        return {true, {}};
    const QByteArrayList reasons = download.isOver() ? download.errors() : QByteArrayList{"the link has ended"};
    return {false, ssh.errorText() + reasons.join('\n')};
}

Result put(const TransferScript &script, int port, const QString &knownHosts, const std::function<void()> &linked)
{
    SshProcess sftp(QStringLiteral("sftp"), sftpArguments(script, port, knownHosts), script.password);
    if (!sftp.begin())
        return {false, sftp.errorText()};
    sftp.write(sftpBatch(script).toLatin1());
    sftp.closeWriteChannel();
    while (!sftp.waitForOutput().isEmpty()) {
    }
    const bool isDone = sftp.waitForSuccess();
    if (isDone)
        linked();
    return {isDone, sftp.errorText()};
}

Result transfer(const TransferScript &script, int port, const QString &knownHosts, const std::function<void()> &linked)
{
    const bool isGet = script.action == TransferScript::Action::Get;
    return isGet ? get(script, port, knownHosts, linked) : put(script, port, knownHosts, linked);
}

/// A key that has changed is taken for the new one, and said, unless it is to be refused.
Result transferWithKeys(const TransferScript &script, int port)
{
    const HostKeys keys(qEnvironmentVariable("VENTARO_SCP_KNOWN_BOXES"));
    const QString knownHosts = script.acceptsAnyHostKey ? keys.prepare() : QString();
    const Result first = transfer(script, port, knownHosts, [] {});
    if (first.isDone || knownHosts.isEmpty() || !HostKeys::isChanged(first.errors))
        return first;
    const QByteArray before = keys.fingerprints(script.host, port);
    if (qEnvironmentVariableIntValue("VENTARO_SCP_REFUSE_NEW_KEY") == 1)
        return {false, refusedKeyText(script.host).toLatin1()};
    keys.forget(script.host, port);
    return transfer(script, port, knownHosts, [&] {
        const QByteArray now = keys.fingerprints(script.host, port);
        say(stdout, changedKeyLine({script.host, QString::fromLatin1(before), QString::fromLatin1(now)}).toLatin1());
    });
}

} // namespace

int main(int argc, char **argv)
{
    const std::optional<QStringList> commands = scriptCommands(earlyArguments(argc, argv));
    if (!commands)
        return fail(QStringLiteral("usage: winscp.com /command \"open user:password@host -hostkey=*\" "
                                   "\"get|put -preservetime ...\" \"exit\""));
    const TransferScript script = parseScript(*commands);
    if (!script.error.isEmpty())
        return fail(script.error);
    const int port = portFromEnvironment();
    if (port == 0)
        return fail(QStringLiteral("VENTARO_SCP_PORT is no port"));
    // The program's own data folder.
    QCoreApplication::setOrganizationName(QStringLiteral("Tarnwald"));
    QCoreApplication::setApplicationName(QStringLiteral("Ventaro"));
    const Result result = transferWithKeys(script, port);
    if (!result.errors.isEmpty())
        say(stderr, result.errors);
    return result.isDone ? 0 : 1;
}
