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

ScpOutcome ScpTransfer::fetch(const QString &address, const QString &directory, const QString &workingDirectory,
                              const Watch &watch)
{
    if (!isBlackBoxDirectory(directory))
        return refuse(ScpTexts::tr("Das ist kein Ordner der BlackBox: %1").arg(directory));
    if (!isReady(address))
        return ScpOutcome::Refused;
    return run(command(scpFetchArguments(account(address), directory), workingDirectory), true, watch);
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
    return run(command(scpUploadArguments(account(address), source->name), source->workingDirectory), false, {});
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
    else if (!isUsableLogin(account(address)))
        (void)refuse(ScpTexts::tr("Benutzername und Kennwort des Zugangs zur Box dürfen weder leer sein noch "
                                  "Leerzeichen, Anführungszeichen oder Steuerzeichen enthalten, der Benutzername auch "
                                  "weder : noch @. Sie werden beim Bau des Programms festgelegt "
                                  "(VENTARO_DEVICE_PASSWORD)."));
    else if (!isUsableAccount(account(address)))
        (void)refuse(ScpTexts::tr("Keine gültige Adresse: %1").arg(account(address).address));
    else
        return true;
    return false;
}

ScpCommand ScpTransfer::command(const QString &arguments, const QString &workingDirectory) const
{
    ScpCommand command;
    command.program =
        m_options.toolFile.isEmpty() ? scpToolFile(QCoreApplication::applicationDirPath()) : m_options.toolFile;
    command.arguments = arguments;
    command.workingDirectory = workingDirectory;
    return command;
}

ScpOutcome ScpTransfer::run(const ScpCommand &command, bool logsDirectory, const Watch &watch)
{
    m_hadNewKey = false;
    ScpResult result = attempt(command, logsDirectory, watch);
    while (scpOutcome(result) == ScpOutcome::NotFinished && watch.goesOn && watch.goesOn())
        result = attempt(command, logsDirectory, watch);
    if (const std::optional<ScpMessage> message = scpMessage(result, command))
        report(*message);
    return scpOutcome(result);
}

ScpResult ScpTransfer::attempt(const ScpCommand &command, bool logsDirectory, const Watch &watch)
{
    qCDebug(lcDevice).noquote().nospace() << "starting tool: " << command.commandLine();
    if (logsDirectory)
        qCDebug(lcDevice).noquote().nospace() << "in " << command.workingDirectory;
    const ScpResult result = runTool(command, watch);
    logResult(result);
    noteKey(result);
    return result;
}

ScpResult ScpTransfer::runTool(const ScpCommand &command, const Watch &watch)
{
    bool waiting = false; // the cursor is switched back on every path, but only if it was changed
    const auto setWaiting = [this, &waiting](bool on) {
        if (std::exchange(waiting, on) != on && m_surroundings.setWaiting)
            m_surroundings.setWaiting(on);
    };
    // The run processes events, from which another transfer could be asked for.
    m_running = true;
    ScpResult result = m_process->run(command, m_options.timeouts, {[&setWaiting] { setWaiting(true); }, watch.output});
    m_running = false;
    setWaiting(false);
    return result;
}

void ScpTransfer::noteKey(const ScpResult &result)
{
    const std::optional<ScpMessage> message = newKeyMessage(result);
    if (!message)
        return;
    m_hadNewKey = true;
    report(*message);
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
