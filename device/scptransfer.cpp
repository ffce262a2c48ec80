#include "device/scptransfer.h"

#include "device/logging.h"

#include <QCoreApplication>

#include <utility>

namespace {

constexpr int kRuleLength = 64;

void logResult(const ScpResult &result)
{
    const bool crashed = result.end == ScpResult::End::Crashed;
    if (!crashed && result.end != ScpResult::End::Exited)
        return;
    qCDebug(lcDevice) << "exit code:" << result.exitCode;
    if (crashed)
        return;
    if (result.isSuccess()) {
        qCDebug(lcDevice) << "Normal Exit";
        return;
    }
    qCDebug(lcDevice).noquote() << QString(kRuleLength, QLatin1Char('-'));
    qCDebug(lcDevice) << "SCP Problem:";
    qCDebug(lcDevice).noquote().nospace() << "  StdOut:  " << result.standardOutput;
    qCDebug(lcDevice).noquote().nospace() << "  StdErr:  " << result.standardError;
}

} // namespace

ScpTransfer::ScpTransfer(std::unique_ptr<ScpProcess> process)
    : m_process(process ? std::move(process) : std::make_unique<ChildScpProcess>())
{}

ScpOutcome ScpTransfer::fetch(const QString &address, const QString &directory, const QString &workingDirectory)
{
    if (!isBlackBoxDirectory(directory))
        return refuse(ScpTexts::tr("Das ist kein Ordner der BlackBox: %1").arg(directory));
    if (!isReady(address))
        return ScpOutcome::Refused;
    return run(scpFetchArguments(account(address), directory), workingDirectory, true);
}

ScpOutcome ScpTransfer::upload(const QString &address, const QString &fileName)
{
    const std::optional<ScpSource> source = scpSource(fileName);
    if (!source)
        return refuse(ScpTexts::tr("Der Dateiname darf keine Leerzeichen, Anführungszeichen, Platzhalter (* ?) oder "
                                   "Steuerzeichen enthalten. Bitte die Datei umbenennen:\n%1")
                          .arg(fileName));
    if (!isReady(address))
        return ScpOutcome::Refused;
    return run(scpUploadArguments(account(address), source->name), source->workingDirectory, false);
}

ScpOutcome ScpTransfer::refuseDate(const QString &date) const
{
    return refuse(ScpTexts::tr("Das ist kein Datum (TT.MM.JJJJ): %1").arg(date));
}

void ScpTransfer::cancel()
{
    if (m_running)
        m_process->cancel();
}

ScpAccount ScpTransfer::account(const QString &address) const
{
    return {m_options.user, m_options.password, address.isEmpty() ? m_options.defaultAddress : address};
}

bool ScpTransfer::isReady(const QString &address) const
{
    if (m_running)
        (void)refuse(ScpTexts::tr("Es läuft schon eine Übertragung. Bitte warten, bis sie beendet ist."));
    else if (account(address).address.isEmpty())
        (void)refuse(ScpTexts::tr("Die Adresse der Box ist noch nicht bekannt. Bitte zuerst verbinden."));
    else if (!isUsableAccount(account(address)))
        (void)refuse(ScpTexts::tr("Keine gültige Adresse: %1").arg(account(address).address));
    else
        return true;
    return false;
}

ScpOutcome ScpTransfer::run(const QString &arguments, const QString &workingDirectory, bool logsDirectory)
{
    ScpCommand command;
    command.program =
        m_options.toolFile.isEmpty() ? scpToolFile(QCoreApplication::applicationDirPath()) : m_options.toolFile;
    command.arguments = arguments;
    command.workingDirectory = workingDirectory;
    qCDebug(lcDevice).noquote().nospace() << "starting tool: " << command.commandLine();
    if (logsDirectory)
        qCDebug(lcDevice).noquote().nospace() << "in " << workingDirectory;
    const ScpResult result = runTool(command);
    logResult(result);
    if (const std::optional<ScpMessage> message = scpMessage(result, command))
        report(*message);
    return scpOutcome(result);
}

ScpResult ScpTransfer::runTool(const ScpCommand &command)
{
    bool waiting = false; // the cursor is switched back on every path, but only if it was changed
    const auto setWaiting = [this, &waiting](bool on) {
        if (std::exchange(waiting, on) != on && m_surroundings.setWaiting)
            m_surroundings.setWaiting(on);
    };
    // The run processes events, from which another transfer could be asked for.
    m_running = true;
    ScpResult result = m_process->run(command, m_options.timeouts, [&setWaiting] { setWaiting(true); });
    m_running = false;
    setWaiting(false);
    return result;
}

ScpOutcome ScpTransfer::refuse(const QString &text) const
{
    qCDebug(lcDevice).noquote() << "transfer refused:" << text;
    report({ScpTexts::tr("Problem"), text, false});
    return ScpOutcome::Refused;
}

void ScpTransfer::report(const ScpMessage &message) const
{
    if (m_surroundings.report)
        m_surroundings.report(message);
}
