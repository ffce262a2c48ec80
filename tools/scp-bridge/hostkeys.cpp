#include "tools/scp-bridge/hostkeys.h"

#include <QByteArrayList>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int kUsualPort = 22;
constexpr int kToolTimeout = 5000; // ms; it reads one small file

QByteArray outputOfKeygen(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("ssh-keygen"), arguments);
    (void)process.waitForFinished(kToolTimeout); // without an answer nothing is known
    return process.readAllStandardOutput();
}

QString usualFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return folder.isEmpty() ? QString() : folder + QStringLiteral("/known_boxes");
}

} // namespace

HostKeys::HostKeys(const QString &fileName)
    : m_fileName(fileName.isEmpty() ? usualFile() : fileName)
{}

QString HostKeys::prepare() const
{
    return !m_fileName.isEmpty() && QDir().mkpath(QFileInfo(m_fileName).path()) ? m_fileName : QString();
}

QString HostKeys::entryName(const QString &host, int port)
{
    return port == kUsualPort ? host : QStringLiteral("[%1]:%2").arg(host).arg(port);
}

QByteArray HostKeys::fingerprints(const QString &host, int port) const
{
    if (!QFileInfo::exists(m_fileName))
        return {};
    const QByteArray output = outputOfKeygen(
        {QStringLiteral("-l"), QStringLiteral("-F"), entryName(host, port), QStringLiteral("-f"), m_fileName});
    QByteArrayList found;
    for (const QByteArray &word : output.simplified().split(' ')) {
        if (word.startsWith("SHA256:"))
            found.append(word);
    }
    return found.join(' ');
}

void HostKeys::forget(const QString &host, int port) const
{
    (void)outputOfKeygen({QStringLiteral("-R"), entryName(host, port), QStringLiteral("-f"), m_fileName});
}

bool HostKeys::isChanged(const QByteArray &errorText)
{
    return errorText.contains("REMOTE HOST IDENTIFICATION HAS CHANGED");
}
