#pragma once

#include <QObject>

class QSocketNotifier;

/// Turns the system's requests to end (SIGTERM, SIGINT, and SIGHUP unless it is ignored already) into a signal of the
/// event loop, which arrives also while a dialog is open. One at a time. Elsewhere than on Unix it does nothing.
class ExitSignals : public QObject
{
    Q_OBJECT

public:
    ExitSignals();
    /// The requests end the program at once again.
    ~ExitSignals() override;

    /// Writing to a pipe that nobody reads, or beyond a limit of the file's size, becomes an error of the write instead
    /// of the program's end.
    static void ignoreWriteSignals();

signals:
    void received();

private:
    void read();

    QSocketNotifier *m_notifier = nullptr;
};
