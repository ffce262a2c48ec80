#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What one argument text of the tool asks for. Everything here is pure. Texts hold one byte per character, whatever
/// the encoding of file names is.
struct TransferScript
{
    enum class Action { Get, Put };

    QString user;
    QString password;
    QString host;
    bool acceptsAnyHostKey = false;
    Action action = Action::Get;
    QString source; ///< may hold blanks
    QString target; ///< of a put; a get goes into the working directory
    bool preservesTimes = false;
    QString error; ///< not empty: what is wrong with the text
};

/// The commands after "/command": each is a quoted part of one text or a separate argument, quoted or not.
/// Nothing if there is no "/command" or a quotation mark is not closed.
[[nodiscard]] std::optional<QStringList> scriptCommands(const QStringList &arguments);
/// One "open", one "get" or "put", then perhaps "exit".
[[nodiscard]] TransferScript parseScript(const QStringList &commands);
/// A put as a batch of sftp, whose paths are all quoted.
[[nodiscard]] QString sftpBatch(const TransferScript &script);
/// The arguments of sftp, which reads the batch from its standard input and the password from its terminal. Keys of
/// hosts are remembered in the file `knownHosts`; empty: they are not, if the script accepts any of them.
[[nodiscard]] QStringList sftpArguments(const TransferScript &script, int port, const QString &knownHosts);
/// The arguments of ssh for a link to the server's SFTP service over its standard input and output.
[[nodiscard]] QStringList sshArguments(const TransferScript &script, int port, const QString &knownHosts);
