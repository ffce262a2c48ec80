#pragma once

#include <QString>

#include <optional>

/// The command text of the external SCP tool. Everything here is pure. Each quoted part of an argument text is one
/// command in the tool's own language, in which blanks separate words; so nothing with a blank, a quotation mark or a
/// control character may get into it from outside. Whoever builds a command has to call the checks below first.

/// Who logs in where. The address is a host name or an IPv4 address.
struct ScpAccount
{
    QString user;
    QString password;
    QString address;
};

/// One run of the tool.
struct ScpCommand
{
    QString program;          ///< path of the tool with "/", as it is started
    QString arguments;        ///< one text, which the tool itself takes apart
    QString workingDirectory; ///< empty: the current one

    /// As it is shown and logged: every "/" of the program's path is a backslash, then one blank and the arguments.
    [[nodiscard]] QString commandLine() const;
};

/// A local file as it can be named in a command.
struct ScpSource
{
    QString name;
    QString workingDirectory; ///< empty: any; else the name is relative to this folder
};

/// Path of the tool in the folder of the program.
[[nodiscard]] QString scpToolFile(const QString &applicationDirectory);

/// Fetches a directory of the box's data logger into the working directory.
[[nodiscard]] QString scpFetchArguments(const ScpAccount &account, const QString &directory);
/// Puts a local file onto the box's USB stick.
[[nodiscard]] QString scpUploadArguments(const ScpAccount &account, const QString &fileName);

/// "05.03.2024" is logged in "dir-20240305". Nothing if the text is not a day of the calendar written so, in ASCII.
[[nodiscard]] std::optional<QString> blackBoxDirectory(const QString &date);
/// True for "dir-" and eight ASCII digits.
[[nodiscard]] bool isBlackBoxDirectory(const QString &name);

/// True if user and password are one word each of the tool's language.
[[nodiscard]] bool isUsableLogin(const ScpAccount &account);
/// True if every part is one word of the tool's language and the address is a host.
[[nodiscard]] bool isUsableAccount(const ScpAccount &account);
/// How to name a file so that it stays one word: if only the path of its folder contains blanks, the name alone, for
/// a run in that folder. Nothing if the name itself has blanks, wildcards, quotation marks or control characters.
[[nodiscard]] std::optional<ScpSource> scpSource(const QString &fileName);
