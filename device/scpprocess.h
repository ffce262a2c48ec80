#pragma once

#include "device/protocol/scpresult.h"

#include <QByteArray>

#include <functional>

class QEventLoop;
class QProcess;
struct ScpCommand;

/// How long a run of the tool may take, in ms.
struct ScpTimeouts
{
    int start = 3000;
    int finish = 40000;
    int terminate = 1000; ///< between the request to end and the end by force
};

/// Who wants to know how a run is going; unset parts are left out.
struct ScpWatch
{
    std::function<void()> started;                       ///< the tool runs
    std::function<void(const QByteArray &bytes)> output; ///< on its standard output
};

/// Runs the SCP tool: as a child process in the program, as a replacement in tests.
class ScpProcess
{
public:
    virtual ~ScpProcess() = default;

    /// Returns when the run is over; no process is left then. Processes events meanwhile.
    [[nodiscard]] virtual ScpResult run(const ScpCommand &command, const ScpTimeouts &timeouts,
                                        const ScpWatch &watch) = 0;
    /// Ends a run that is under way; it returns soon after this call.
    virtual void cancel() = 0;
};

/// Runs the tool as a child process. What it writes is read all the time, so that it never waits for its reader, but
/// only the beginning is kept. The end of the program's event loop cancels a run.
class ChildScpProcess : public ScpProcess
{
public:
    /// How many bytes of standard output, and of standard error, are kept.
    static constexpr int kMaxOutput = 16 * 1024;

    [[nodiscard]] ScpResult run(const ScpCommand &command, const ScpTimeouts &timeouts, const ScpWatch &watch) override;
    void cancel() override;

private:
    enum class Wait { Done, TimedOut, Cancelled };

    [[nodiscard]] Wait waitWhile(QProcess &process, const std::function<bool()> &isPending, int milliseconds);
    void end(QProcess &process, const ScpTimeouts &timeouts);
    [[nodiscard]] ScpResult::End runStarted(QProcess &process, const ScpTimeouts &timeouts,
                                            const std::function<void()> &started);

    QEventLoop *m_loop = nullptr; ///< while waiting
    bool m_cancelled = false;
};
