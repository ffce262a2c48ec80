#pragma once

#include <QObject>
#include <QTimer>

/// Repeats a step while a button is held down: first after a pause, then quickly, and after many
/// steps in larger ones.
class HoldRepeat : public QObject
{
    Q_OBJECT

public:
    explicit HoldRepeat(QObject *parent = nullptr);

    /// The button is pressed; the first step is up to the caller.
    void start();
    void stop() { m_timer.stop(); }
    /// Counts a step that due() asked for; true once the steps should be large ones.
    [[nodiscard]] bool countStep();

signals:
    /// Another step is due.
    void due();

private:
    QTimer m_timer;
    int m_steps = 0;
};
