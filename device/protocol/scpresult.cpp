#include "device/protocol/scpresult.h"

#include "device/protocol/scpcommand.h"
#include "device/protocol/scpoutput.h"

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
    const QString text = ScpTexts::tr("SCP was NOT successful!!\n\nPlease check output:") + output;
    if (!isRefusedKey(result.standardError))
        return {ScpTexts::tr("SCP Problem"), text, true, true};
    const QString next = ScpTexts::tr("Unter dieser Adresse antwortet ein anderes Gerät als bisher, und so ist es "
                                      "eingestellt: Ein solches wird abgewiesen (VENTARO_SCP_REFUSE_NEW_KEY). Ist es "
                                      "die richtige Box, bitte die Einstellung für eine Übertragung weglassen.");
    return {ScpTexts::tr("SCP Problem"), text + QLatin1String("\n\n") + next, true, true};
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
        return ScpMessage{ScpTexts::tr("Problem"), ScpTexts::tr("The tool stopped!"), false, true};
    case ScpOutcome::Done:
    case ScpOutcome::Refused:
    case ScpOutcome::Cancelled:
        break;
    }
    return std::nullopt;
}

std::optional<ScpMessage> newKeyMessage(const ScpResult &result)
{
    const std::optional<ScpChangedKey> key = changedKeyOf(result.standardOutput);
    if (!key)
        return std::nullopt;
    const QString text =
        ScpTexts::tr("Das Gerät unter %1 weist sich mit einem anderen Schlüssel aus als bisher.\n\n"
                     "Das ist so, wenn dort jetzt eine andere Box angeschlossen ist oder ihr System neu "
                     "aufgespielt wurde. Trifft keines von beiden zu, gibt sich womöglich ein fremdes "
                     "Gerät als Box aus und kennt nun das Kennwort: dann bitte das Netz prüfen.\n\n"
                     "bisher: %2\njetzt: %3")
            .arg(key->host, key->before, key->now);
    return ScpMessage{ScpTexts::tr("Andere Box?"), text, true};
}
