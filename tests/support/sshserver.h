#pragma once

#include "tests/support/literals.h"
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <crypt.h>
#include <csignal>
#include <unistd.h>

/// The box's side of a file transfer: an SSH server on this machine with a separate account, which sees nothing but
/// a folder of the test. Neither accounts nor settings of the machine are changed: who exists is told to the server
/// alone. Link crypt.
class SshServer
{
public:
    SshServer(const QString &user, const QString &password)
        : m_user(user)
        , m_password(password)
    {}
    ~SshServer()
    {
        killSessions();
        m_server.terminate();
        m_server.waitForFinished(3000);
    }
    Q_DISABLE_COPY_MOVE(SshServer)

    /// What this machine lacks; empty: nothing.
    [[nodiscard]] static QString whatIsMissing()
    {
        if (::geteuid() != 0)
            return "only root may confine an SSH server to a folder"_s;
        for (const QString &program : {sshd(), "ssh-keygen"_s, "sshpass"_s, "sftp"_s}) {
            if (QStandardPaths::findExecutable(program).isEmpty())
                return program + " is not installed"_s;
        }
        return {};
    }

    [[nodiscard]] bool start() { return QDir().mkpath("/run/sshd"_s) && makeFiles() && run(); }
    /// As another box at the same address.
    [[nodiscard]] bool restartWithNewKey()
    {
        killSessions();
        m_server.terminate();
        m_server.waitForFinished(3000);
        QFile::remove(file("key"));
        return makeKey() && run();
    }

    [[nodiscard]] int port() const { return m_port; }
    /// "/media/usbstick" of the box.
    [[nodiscard]] QDir stick() const { return QDir(file("root/media/usbstick")); }
    /// Makes a file below the stick, with its folders; the account may write there.
    void write(const QString &name, const QByteArray &content, const QDateTime &time = {}) const
    {
        QDir().mkpath(QFileInfo(stick().filePath(name)).path());
        QFile target(stick().filePath(name));
        QVERIFY(target.open(QIODevice::WriteOnly));
        target.write(content);
        target.flush();
        if (time.isValid())
            QVERIFY(target.setFileTime(time, QFileDevice::FileModificationTime));
    }
    /// Ends all connections at once, as a box does that loses its power.
    void killSessions() const
    {
        if (m_server.processId() > 0)
            killChildren(QString::number(m_server.processId()));
    }

private:
    static constexpr int kAccount = 65534; ///< owns nothing

    [[nodiscard]] bool run()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_PRELOAD"_s, "libnss_wrapper.so"_s);
        for (const char *table : {"passwd", "shadow", "group"})
            environment.insert("NSS_WRAPPER_"_s + QString::fromLatin1(table).toUpper(), file(table));
        m_server.setProcessEnvironment(environment);
        m_server.setStandardErrorFile(file("log"));
        m_server.start(sshd(), {"-D"_s, "-e"_s, "-f"_s, file("config")});
        return m_server.waitForStarted() && QTest::qWaitFor([this] { return answers(); });
    }

    [[nodiscard]] static QString sshd() { return "/usr/sbin/sshd"_s; }
    [[nodiscard]] QString file(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    void writeFile(const char *name, const QString &content) const
    {
        QFile target(file(name));
        if (target.open(QIODevice::WriteOnly))
            target.write(content.toUtf8());
    }

    static void killChildren(const QString &process)
    {
        QFile children("/proc/%1/task/%1/children"_s.arg(process));
        if (!children.open(QIODevice::ReadOnly))
            return;
        for (const QByteArray &child : children.readAll().simplified().split(' ')) {
            if (child.toInt() <= 1)
                continue;
            killChildren(QString::fromLatin1(child)); // the privileged half and the one that serves
            ::kill(child.toInt(), SIGKILL);
        }
    }

    [[nodiscard]] bool makeFiles()
    {
        QTcpServer probe;
        if (!m_folder.isValid() || !probe.listen(QHostAddress::LocalHost))
            return false;
        m_port = probe.serverPort();
        // Whoever is confined to a folder may not own it.
        QFile::setPermissions(m_folder.path(), QFileDevice::Permissions(0x7755));
        stick().mkpath("data"_s);
        for (const QString &folder : {stick().path(), stick().filePath("data"_s)})
            (void)::chown(folder.toUtf8().constData(), kAccount, kAccount); // else the upload fails, which is noticed
        writeAccounts();
        writeConfig();
        return makeKey();
    }

    [[nodiscard]] bool makeKey() const
    {
        return QProcess::execute("ssh-keygen"_s, {"-q"_s, "-t"_s, "ed25519"_s, "-N"_s, QString(), "-f"_s, file("key")})
               == 0;
    }

    void writeAccounts() const
    {
        const QString hash = QString::fromLatin1(::crypt(m_password.toUtf8().constData(), "$6$ventarotest"));
        writeFile("passwd", "root:x:0:0::/root:/bin/sh\nsshd:x:102:65534::/run/sshd:/bin/false\n"
                            "%1:x:%2:%2::/:/bin/sh\n"_s.arg(m_user)
                                .arg(kAccount));
        writeFile("shadow", "%1:%2:19000:0:99999:7:::\n"_s.arg(m_user, hash));
        writeFile("group", "root:x:0:\nnogroup:x:%1:\n"_s.arg(kAccount));
    }

    void writeConfig() const
    {
        writeFile("config", "ListenAddress 127.0.0.1\nPort %1\nHostKey %2\nPidFile none\nUsePAM no\n"
                            "PasswordAuthentication yes\nPubkeyAuthentication no\n"
                            "KbdInteractiveAuthentication no\nChrootDirectory %3\n"
                            "Subsystem sftp internal-sftp\nForceCommand internal-sftp\n"_s.arg(
                                QString::number(m_port), file("key"), file("root")));
    }

    [[nodiscard]] bool answers() const
    {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), static_cast<quint16>(m_port));
        return socket.waitForConnected(100);
    }

    QString m_user;
    QString m_password;
    QTemporaryDir m_folder{"/run/ventaro-ssh-XXXXXX"_s}; ///< nobody but root may write on its way
    QProcess m_server;
    int m_port = 0;
};
