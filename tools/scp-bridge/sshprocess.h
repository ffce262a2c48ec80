#pragma once

#include <QProcess>

/// A program of OpenSSH that is given its password by sshpass, through a pipe that nobody else can read. Ends when this
/// program is killed. What it writes to its standard error is kept, up to a length.
class SshProcess : public QProcess
{
public:
    static constexpr int kMostErrors = 64 * 1024; ///< bytes of its standard error

    /// `password` and `arguments` hold one byte per character.
    SshProcess(const QString &program, const QStringList &arguments, const QString &password);
    ~SshProcess() override;

    /// False, and errorText() says why, if it does not start.
    [[nodiscard]] bool begin();
    /// What has arrived since the last call; waits for it. Empty at the end.
    [[nodiscard]] QByteArray waitForOutput();
    /// Waits for the end; true if it ended by itself and with 0.
    [[nodiscard]] bool waitForSuccess();
    [[nodiscard]] QByteArray errorText() const { return m_errors; }

protected:
    void setupChildProcess() override;

private:
    [[nodiscard]] bool hidePassword();
    void keepErrors();

    QByteArray m_password;
    QByteArray m_errors;
    int m_readEnd = -1;
};
