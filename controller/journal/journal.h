#pragma once

#include "controller/journal/journalfolder.h"
#include "controller/journal/journaloptions.h"
#include "model/journal/journalfile.h"
#include "model/journal/journaltracker.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class Model;

/// Keeps on disk what the project holds beyond its file, while it is modified, so that the end of the program or of the
/// computer costs seconds of work at most. Begins with the first change, ends when the project is saved, given up or
/// replaced. One file at a time; needs no window.
class Journal : public QObject
{
    Q_OBJECT

public:
    /// The model must outlive the journal. `isRecording` tells the end of a shot.
    Journal(Model &model, const JournalOptions &options, std::function<bool()> isRecording);
    /// Keeps the file of a project that is still modified.
    ~Journal() override;

    /// Hands over what has changed, if there is a project to protect.
    void takeChanges();
    /// Hands over what has changed and waits until the disk has it; false if that is not possible.
    bool secure();
    /// The user gives up what is not saved, and the program is about to end.
    void discard();

signals:
    /// A message for the status bar.
    void told(const QString &text);

private:
    struct File;

    void follow();
    void tick();
    [[nodiscard]] bool mayWrite() const;
    [[nodiscard]] bool handOver();
    [[nodiscard]] bool begin();
    void end();
    void dropOld();
    void noteEndOfShot();
    void forceIfDue();
    [[nodiscard]] bool force();
    void fail(const JournalFault &fault);
    void publish();

    Model &m_model;
    JournalFolder m_folder;
    JournalOptions m_options;
    std::function<bool()> m_isRecording;
    QTimer m_timer;
    JournalTracker m_tracker;
    std::unique_ptr<File> m_file;
    std::unique_ptr<File> m_old; // kept until the new one holds everything
    quint64 m_generation = 0;    // of the model's file when the journal began
    quint64 m_structure = 0;
    QElapsedTimer m_sinceForce;
    QElapsedTimer m_sinceFault; // valid while writing fails
    int m_lastForce = 0;        // ms
    int m_longestForce = -1;    // ms
    bool m_wasRecording = false;
    bool m_shotEnded = false;
    bool m_isForced = true; // nothing was handed over since
    bool m_isForceFailing = false;
    bool m_isTold = false; // that writing fails
    bool m_discarded = false;
};
