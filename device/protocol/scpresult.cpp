#include "device/protocol/scpresult.h"

#include "device/protocol/scpcommand.h"

namespace {

ScpMessage notStarted(const QString &commandLine, const QString &errorText)
{
    return {ScpTexts::tr("Problem"),
            ScpTexts::tr("The SCP tool could not be started!<br><br>Tool command: %1<br>Error: %2")
                .arg(commandLine, errorText),
            false};
}

ScpMessage failed(const ScpResult &result)
{
    const QString output = result.standardOutput + QLatin1String("\n*******\n") + result.standardError;
    return {ScpTexts::tr("SCP Problem"), ScpTexts::tr("SCP was NOT successful!!\n\nPlease check output:") + output,
            true};
}

} // namespace

ScpOutcome scpOutcome(const ScpResult &result)
{
    switch (result.end) {
    case ScpResult::End::NotStarted:
        return ScpOutcome::NotStarted;
    case ScpResult::End::NotFinished:
        return ScpOutcome::NotFinished;
    case ScpResult::End::Crashed:
        return ScpOutcome::Crashed;
    case ScpResult::End::Cancelled:
        return ScpOutcome::Cancelled;
    case ScpResult::End::Exited:
        break;
    }
    return result.isSuccess() ? ScpOutcome::Done : ScpOutcome::Failed;
}

std::optional<ScpMessage> scpMessage(const ScpResult &result, const ScpCommand &command)
{
    switch (scpOutcome(result)) {
    case ScpOutcome::NotStarted:
        return notStarted(command.commandLine(), result.errorText);
    case ScpOutcome::NotFinished:
        return ScpMessage{ScpTexts::tr("Problem"), ScpTexts::tr("SCP did not end (yet)!"), false};
    case ScpOutcome::Failed:
        return failed(result);
    case ScpOutcome::Crashed:
        return ScpMessage{ScpTexts::tr("Problem"), ScpTexts::tr("The tool stopped!"), false};
    case ScpOutcome::Done:
    case ScpOutcome::Refused:
    case ScpOutcome::Cancelled:
        break;
    }
    return std::nullopt;
}
