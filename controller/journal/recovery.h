#pragma once

#include "controller/desk.h"
#include "controller/journal/journalfolder.h"
#include "model/journal/journalcontents.h"
#include "model/journal/projectrecovery.h"

#include <QObject>

#include <deque>
#include <functional>
#include <optional>

class DeferredQuestions;
class FileProgress;
class Journal;
class LineQueue;
class ProjectSaving;
struct Choice;

/// Offers what programs that have ended left unsaved, one journal after the other. A journal is removed only when the
/// user gave it up, or when the running program's own one holds the restored project.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// What recovery needs beside the desk; all must outlive it.
    struct Needs
    {
        DeferredQuestions &questions;
        FileProgress &progress;
        LineQueue &lines;
        ProjectSaving &saving;
    };
    /// Nobody is asked while `isRecording`.
    Recovery(const Desk &desk, const Needs &needs, Journal &journal, std::function<bool()> isRecording,
             const QString &folder);

    /// Looks for journals; asks as soon as nothing else is under way.
    void begin();

signals:
    /// Another project is in the model; the measurements are not those from before.
    void restored();

private:
    void askLater(int wait = 0);
    void askNext();
    [[nodiscard]] std::optional<JournalContents> read(const LeftJournal &journal);
    void setAside(const LeftJournal &journal);
    void offer(const LeftJournal &journal, JournalContents &contents);
    [[nodiscard]] int choose(const Choice &choice);
    [[nodiscard]] bool confirmDiscarding(const JournalContents &contents);
    void discard(const LeftJournal &journal);
    [[nodiscard]] bool mayReplaceProject();
    [[nodiscard]] bool mustWaitForRecording();
    void restore(const LeftJournal &journal, JournalContents &contents);
    void show(const RecoveryLosses &losses);
    void warn(const QString &text);

    Desk m_desk;
    Needs m_needs;
    Journal &m_journal;
    std::function<bool()> m_isRecording;
    JournalFolder m_folder;
    std::deque<LeftJournal> m_left;
};
