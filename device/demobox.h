#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTimer>

/// Runs the box simulator that comes with the program as a child process on a free port of this machine. No process is
/// left behind: the simulator ends when its input is closed, which the system does even if the program crashes.
class DemoBox : public QObject
{
    Q_OBJECT

public:
    /// Why the simulator is not running.
    enum class End { NotStarted, NotListening, Ended };
    Q_ENUM(End)

    static constexpr int kStartTimeout = 5000; ///< ms until the simulator has to listen

    /// `program`: empty for the simulator beside the program.
    explicit DemoBox(const QString &program = {}, int startTimeout = kStartTimeout);
    /// Ends the simulator.
    ~DemoBox() override;

    /// True if the simulator's file exists and can be run; looks at the file system.
    [[nodiscard]] bool isAvailable() const;
    [[nodiscard]] QString program() const { return m_program; }
    /// From start() to stop() or failed().
    [[nodiscard]] bool isActive() const { return m_active; }
    /// 0 while inactive or not running.
    [[nodiscard]] qint64 processId() const { return m_process ? m_process->processId() : 0; }

    /// Returns at once; listening() or failed() follows. Does nothing while active.
    void start();
    /// Nothing is emitted afterwards. Returns within 100 ms.
    void stop();

signals:
    /// The simulator takes connections on this port of 127.0.0.1.
    void listening(quint16 port);
    /// The simulator could not be started, did not listen in time or ended by itself. It is inactive by now.
    void failed(DemoBox::End end);

private:
    void readOutput();
    void fail(End end);

    QString m_program;
    QProcess *m_process = nullptr; ///< owned; exists while active
    QTimer m_startTimer;
    QByteArray m_output; ///< of the simulator; a line that is not complete yet
    bool m_active = false;
    bool m_listening = false;
};
