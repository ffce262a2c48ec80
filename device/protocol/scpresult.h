#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

struct ScpCommand;

/// What became of one run of the SCP tool.
struct ScpResult
{
    enum class End {
        NotStarted,  ///< nothing ran; errorText says why
        NotFinished, ///< still running after the wait, then ended by force
        Exited,      ///< by itself, with exitCode
        Crashed,
        Cancelled, ///< by the user or the end of the program
    };

    End end = End::NotStarted;
    int exitCode = 0;
    QString errorText;
    QString standardOutput; ///< only the beginning of very long texts
    QString standardError;

    [[nodiscard]] bool isSuccess() const { return end == End::Exited && exitCode == 0; }
};

/// Translates what the user is told about transfers.
struct ScpTexts
{
    Q_DECLARE_TR_FUNCTIONS(Scp)
};

/// A message box for the user.
struct ScpMessage
{
    QString title;
    QString text;
    bool isWarning = false;
    bool isOfThisTransfer = false; ///< the next one may succeed
};

/// How a transfer ended for its caller; everything but Done and Cancelled has been reported to the user.
enum class ScpOutcome { Done, Refused, NotStarted, NotFinished, Failed, Crashed, Cancelled };

[[nodiscard]] ScpOutcome scpOutcome(const ScpResult &result);
/// What the user is told; nothing after a success or if the user ended the run.
[[nodiscard]] std::optional<ScpMessage> scpMessage(const ScpResult &result, const ScpCommand &command);
/// What the user is told if the tool has found another key at the box than before.
[[nodiscard]] std::optional<ScpMessage> newKeyMessage(const ScpResult &result);
