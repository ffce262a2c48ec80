// Does what the SCP tool of the other platform does, with OpenSSH's sftp and sshpass:
//
//     winscp.com '/command "open user:password@host -hostkey=* " "get -preservetime /remote/folder" "exit"'
//
// Ends with 0 after a complete transfer and with 1 otherwise. The environment variable VENTARO_SCP_PORT names another
// port than 22.

#include "tools/scp-bridge/script.h"

#include <QProcess>

#include <csignal>
#include <cstdio>
#include <cstring>

#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace {

constexpr int kDefaultPort = 22;
constexpr int kHighestPort = 65535;

int fail(const QString &text)
{
    std::fprintf(stderr, "%s\n", text.toLatin1().constData());
    return 1;
}

/// The arguments byte by byte. The process's own copy is wiped, so that a list of processes does not show the password.
QStringList takeArguments(int count, char **values)
{
    QStringList arguments;
    for (int i = 1; i < count; ++i) {
        arguments.append(QString::fromLatin1(values[i]));
        std::memset(values[i], '*', std::strlen(values[i]));
    }
    return arguments;
}

/// 0 if the environment variable is not a port.
int portFromEnvironment()
{
    if (!qEnvironmentVariableIsSet("VENTARO_SCP_PORT"))
        return kDefaultPort;
    const int port = qEnvironmentVariableIntValue("VENTARO_SCP_PORT");
    return port > 0 && port <= kHighestPort ? port : 0;
}

/// A child that ends when this program is killed.
class BoundProcess : public QProcess
{
protected:
    void setupChildProcess() override
    {
#ifdef __linux__
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
    }
};

int transfer(const TransferScript &script, int port)
{
    qputenv("SSHPASS", script.password.toLatin1()); // for sshpass; not on a command line
    BoundProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral("sshpass"),
                  QStringList{QStringLiteral("-e"), QStringLiteral("sftp")} + sftpArguments(script, port));
    if (!process.waitForStarted(-1))
        return fail(QStringLiteral("sshpass cannot be started: ") + process.errorString());
    process.write(sftpBatch(script).toLatin1());
    process.closeWriteChannel();
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit)
        return fail(QStringLiteral("the transfer was ended"));
    return process.exitCode() == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    const std::optional<QStringList> commands = scriptCommands(takeArguments(argc, argv));
    if (!commands)
        return fail(QStringLiteral("usage: winscp.com /command \"open user:password@host -hostkey=*\" "
                                   "\"get|put -preservetime ...\" \"exit\""));
    const TransferScript script = parseScript(*commands);
    if (!script.error.isEmpty())
        return fail(script.error);
    const int port = portFromEnvironment();
    return port > 0 ? transfer(script, port) : fail(QStringLiteral("VENTARO_SCP_PORT is no port"));
}
