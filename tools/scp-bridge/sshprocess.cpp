#include "tools/scp-bridge/sshprocess.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace {

constexpr int kPasswordFile = 9; // the number of the pipe in the child: free, as everything else there is closed

} // namespace

SshProcess::SshProcess(const QString &program, const QStringList &arguments, const QString &password)
    : m_password(password.toLatin1() + '\n')
{
    setProgram(QStringLiteral("sshpass"));
    setArguments(QStringList{QStringLiteral("-d"), QString::number(kPasswordFile), program} + arguments);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C")); // its messages are recognised
    setProcessEnvironment(environment);
}

SshProcess::~SshProcess()
{
    if (m_readEnd >= 0)
        ::close(m_readEnd);
}

bool SshProcess::begin()
{
    if (!hidePassword()) {
        m_errors = "no pipe for the password";
        return false;
    }
    start();
    const bool isStarted = waitForStarted(-1);
    ::close(m_readEnd);
    m_readEnd = -1;
    if (!isStarted)
        m_errors = "sshpass cannot be started: " + errorString().toLocal8Bit();
    return isStarted;
}

/// Puts the password into a pipe, which holds it until it is read.
bool SshProcess::hidePassword()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return false;
    m_readEnd = ends[0];
    const bool isWritten = ::write(ends[1], m_password.constData(), static_cast<size_t>(m_password.size()))
                           == static_cast<ssize_t>(m_password.size());
    ::close(ends[1]);
    m_password.fill('\0');
    return isWritten;
}

void SshProcess::setupChildProcess()
{
#ifdef __linux__
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
    if (m_readEnd != kPasswordFile)
        ::dup2(m_readEnd, kPasswordFile); // the copy stays open in the program that is started
    else
        ::fcntl(kPasswordFile, F_SETFD, 0);
}

QByteArray SshProcess::waitForOutput()
{
    while (bytesAvailable() == 0 && waitForReadyRead(-1))
        keepErrors();
    keepErrors();
    return readAllStandardOutput();
}

bool SshProcess::waitForSuccess()
{
    waitForFinished(-1);
    keepErrors();
    return exitStatus() == QProcess::NormalExit && exitCode() == 0;
}

void SshProcess::keepErrors()
{
    const QByteArray more = readAllStandardError();
    m_errors += more.left(kMostErrors - m_errors.size());
}
