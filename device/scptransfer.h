#pragma once

#include "device/protocol/scpcommand.h"
#include "device/protocol/scpresult.h"
#include "device/scpprocess.h"

#include <functional>
#include <memory>

/// Moves files between this computer and the box with the SCP tool, one transfer at a time. Works synchronously, with
/// events processed meanwhile.
class ScpTransfer
{
public:
    /// How transfers are made. The address is that of the call, or the default one while none is known.
    struct Options
    {
        QString toolFile; ///< empty: "winscp/winscp.com" in the program's folder
        QString user;
        QString password;
        QString defaultAddress; ///< of the box while none is known
        ScpTimeouts timeouts;
    };
    /// What the device layer cannot do itself; unset parts are left out.
    struct Surroundings
    {
        std::function<void(const ScpMessage &)> report; ///< shows a message box; may return only when it is closed
        std::function<void(bool)> setWaiting;           ///< wait cursor; always false in the end
    };

    /// What the caller of a fetch wants to know and to decide; unset parts are left out.
    struct Watch
    {
        std::function<void(const QByteArray &)> output; ///< bytes that the tool writes
        /// After an attempt that took too long: true if another one is to follow, which takes only what is missing.
        std::function<bool()> goesOn;
    };

    /// If no process is given, the tool runs as a child process.
    explicit ScpTransfer(std::unique_ptr<ScpProcess> process = nullptr);

    void setOptions(const Options &options) { m_options = options; }
    void setSurroundings(const Surroundings &surroundings) { m_surroundings = surroundings; }

    /// Fetches a data directory of the box ("dir-20240305") into an existing local folder. A message about an attempt
    /// that took too long is shown only if no other one follows.
    ScpOutcome fetch(const QString &address, const QString &directory, const QString &workingDirectory,
                     const Watch &watch = {});
    /// The box at the end of the last transfer was recognised by another key than before; the user has been told.
    [[nodiscard]] bool hadNewKey() const { return m_hadNewKey; }
    /// Puts a local file onto the box.
    ScpOutcome upload(const QString &address, const QString &fileName);
    /// Where a transfer for this address goes: to the default one if it is empty.
    [[nodiscard]] QString usedAddress(const QString &address) const { return account(address).address; }
    /// True while the tool runs or is being started or ended.
    [[nodiscard]] bool isRunning() const { return m_running; }
    /// Ends the tool, if it runs.
    void cancel();
    /// Shows the message for a date that names no directory.
    ScpOutcome refuseDate(const QString &date) const;

private:
    [[nodiscard]] ScpAccount account(const QString &address) const;
    /// False, and reported, if a transfer runs or there is nobody to log in to.
    [[nodiscard]] bool isReady(const QString &address) const;
    [[nodiscard]] ScpCommand command(const QString &arguments, const QString &workingDirectory) const;
    [[nodiscard]] ScpOutcome run(const ScpCommand &command, bool logsDirectory, const Watch &watch);
    [[nodiscard]] ScpResult attempt(const ScpCommand &command, bool logsDirectory, const Watch &watch);
    [[nodiscard]] ScpResult runTool(const ScpCommand &command, const Watch &watch);
    void noteKey(const ScpResult &result);
    ScpOutcome refuse(const QString &text) const;
    void report(const ScpMessage &message) const;

    std::unique_ptr<ScpProcess> m_process;
    Options m_options;
    Surroundings m_surroundings;
    bool m_running = false;
    bool m_hadNewKey = false;
};
