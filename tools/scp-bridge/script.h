#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What one argument text of the tool asks for. Everything here is pure. Texts hold one byte a character, whatever
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

/// The commands behind "/command": each a quoted part of one text, or an argument of its own, quoted or not.
/// Nothing if there is no "/command" or a quotation mark is not closed.
[[nodiscard]] std::optional<QStringList> scriptCommands(const QStringList &arguments);
/// One "open", one "get" or "put", then perhaps "exit".
[[nodiscard]] TransferScript parseScript(const QStringList &commands);
/// The same transfer as a batch of sftp, whose paths are all quoted.
[[nodiscard]] QString sftpBatch(const TransferScript &script);
/// The arguments of sftp; the batch comes through its standard input, the password through the terminal it thinks to
/// have.
[[nodiscard]] QStringList sftpArguments(const TransferScript &script, int port);
