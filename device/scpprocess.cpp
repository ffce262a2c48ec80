#include "device/scpprocess.h"

#include "device/protocol/scpcommand.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kReapTimeout = 3000; // ms; a killed process ends at once
// Exit codes of the waiting loop; any other one comes from the end of the program.
constexpr int kDone = 1001;
constexpr int kTimedOut = 1002;

/// Keeps the beginning of an output.
class Excerpt
{
public:
    void append(const QByteArray &bytes)
    {
        const int room = ChildScpProcess::kMaxOutput - m_kept.size();
        m_isCut = m_isCut || bytes.size() > room;
        m_kept += bytes.left(std::max(room, 0));
    }
    [[nodiscard]] QString text() const
    {
        const QString text = QString::fromLocal8Bit(m_kept).replace(QLatin1String("\r\n"), QLatin1String("\n"));
        return text + (m_isCut ? QStringLiteral("\n[...]") : QString());
    }

private:
    QByteArray m_kept;
    bool m_isCut = false;
};

void prepare(QProcess &process, const ScpCommand &command)
{
    process.setProgram(command.program);
    if (!command.workingDirectory.isEmpty())
        process.setWorkingDirectory(command.workingDirectory);
#ifdef Q_OS_WIN
    process.setNativeArguments(command.arguments);
#else
    process.setArguments({command.arguments}); // taken apart by the tool, as on Windows
#endif
}

} // namespace

ScpResult ChildScpProcess::run(const ScpCommand &command, const ScpTimeouts &timeouts, const ScpWatch &watch)
{
    m_cancelled = false;
    QProcess process;
    prepare(process, command);
    Excerpt output;
    Excerpt errors;
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process, [&] {
        const QByteArray bytes = process.readAllStandardOutput();
        output.append(bytes);
        if (watch.output)
            watch.output(bytes);
    });
    QObject::connect(&process, &QProcess::readyReadStandardError, &process,
                     [&] { errors.append(process.readAllStandardError()); });
    process.start(QIODevice::ReadWrite);
    ScpResult result;
    result.end = runStarted(process, timeouts, watch.started);
    result.exitCode = process.exitCode();
    result.errorText = process.errorString();
    output.append(process.readAllStandardOutput());
    errors.append(process.readAllStandardError());
    result.standardOutput = output.text();
    result.standardError = errors.text();
    return result;
}

ScpResult::End ChildScpProcess::runStarted(QProcess &process, const ScpTimeouts &timeouts,
                                           const std::function<void()> &started)
{
    const auto isStarting = [&process] { return process.state() == QProcess::Starting; };
    Wait wait = waitWhile(process, isStarting, timeouts.start);
    // A failed start ends the wait too: the state changes to NotRunning.
    if (wait == Wait::TimedOut || process.error() == QProcess::FailedToStart) {
        end(process, timeouts);
        return ScpResult::End::NotStarted;
    }
    if (wait == Wait::Done) {
        if (started)
            started();
        wait = waitWhile(
            process, [&process] { return process.state() != QProcess::NotRunning; }, timeouts.finish);
    }
    end(process, timeouts);
    if (wait == Wait::Done)
        return process.exitStatus() == QProcess::NormalExit ? ScpResult::End::Exited : ScpResult::End::Crashed;
    return wait == Wait::TimedOut ? ScpResult::End::NotFinished : ScpResult::End::Cancelled;
}

ChildScpProcess::Wait ChildScpProcess::waitWhile(QProcess &process, const std::function<bool()> &isPending,
                                                 int milliseconds)
{
    if (!isPending())
        return Wait::Done;
    if (m_cancelled)
        return Wait::Cancelled;
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &loop, [&loop] { loop.exit(kTimedOut); });
    QObject::connect(&process, &QProcess::stateChanged, &loop, [&] {
        if (!isPending())
            loop.exit(kDone);
    });
    timer.start(milliseconds);
    m_loop = &loop;
    const int code = loop.exec(); // samples are taken and the window lives meanwhile
    m_loop = nullptr;
    if (!isPending())
        return Wait::Done;
    return code == kTimedOut && !m_cancelled ? Wait::TimedOut : Wait::Cancelled;
}

void ChildScpProcess::end(QProcess &process, const ScpTimeouts &timeouts)
{
    const auto isRunning = [&process] { return process.state() != QProcess::NotRunning; };
    if (!isRunning())
        return;
    process.terminate();
    if (waitWhile(process, isRunning, timeouts.terminate) == Wait::Done)
        return;
    process.kill();
    (void)process.waitForFinished(kReapTimeout); // a killed process cannot resist
}

void ChildScpProcess::cancel()
{
    m_cancelled = true;
    if (m_loop)
        m_loop->exit();
}
