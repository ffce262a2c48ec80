#pragma once

#include <QObject>
#include <QPointer>
#include <QProgressBar>
#include <QTimer>

class Model;
class View;

/// The progress bar in the status bar while files are read or written. Follows the model's long loops, also those of
/// an export that the view has started, and processes events meanwhile.
class FileProgress : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the progress.
    FileProgress(View &view, Model &model);
    ~FileProgress() override;

    /// Shows the bar for a job of one or several files.
    void begin(const QString &text, int files = 1);
    void setDone(int files) { m_done = files; }
    void end();

signals:
    /// A file is about to be read or written.
    void begun();

private:
    void show(int percent);
    void hideWhenIdle();

    Model &m_model;
    QPointer<QProgressBar> m_bar; // the view must not delete it, but its status bar may be gone first
    QTimer m_idleTimer;
    int m_done = 0;
    int m_files = 1;
};

/// Shows the progress bar for its lifetime.
class ProgressScope
{
public:
    ProgressScope(FileProgress &progress, const QString &text, int files = 1)
        : m_progress(progress)
    {
        m_progress.begin(text, files);
    }
    ~ProgressScope() { m_progress.end(); }
    Q_DISABLE_COPY_MOVE(ProgressScope)

private:
    FileProgress &m_progress;
};
