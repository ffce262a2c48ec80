#pragma once

#include "controller/desk.h"

#include <QCoreApplication>

#include <functional>

class FileProgress;
class FileQuestions;
class LineQueue;
class ProjectEdits;
class ProjectLock;

/// Writes the project to its file, and says how that went.
class ProjectSaving
{
    Q_DECLARE_TR_FUNCTIONS(ProjectSaving)

public:
    /// All references must outlive this.
    ProjectSaving(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits, ProjectLock &lock,
                  const FileQuestions &questions);

    /// Of dialogs that choose a project file.
    [[nodiscard]] static QString filter();
    /// Under the current name, or as saveAs() if there is none or if the file that has it is no project.
    void save();
    void saveAs();
    /// True if the user's changes are in a file afterwards; if not, whatever was about to replace them must not happen.
    /// `beforeWriting` is called when the file is chosen.
    [[nodiscard]] bool saveUnsavedChanges(const std::function<void()> &beforeWriting);

private:
    [[nodiscard]] QString askFileToSave();
    enum class Outcome { Saved, GivenUp, Elsewhere, Again };

    [[nodiscard]] QString proposedFile() const;
    [[nodiscard]] bool saveTo(QString fileName);
    [[nodiscard]] Outcome tryToSave(const QString &fileName);
    [[nodiscard]] Outcome checkTarget(const QString &fileName);
    [[nodiscard]] bool write(const QString &fileName);
    void showSaved(const QString &fileName);

    View &m_view;
    Model &m_model;
    Occupancy &m_occupancy;
    FileProgress &m_progress;
    LineQueue &m_lines;
    ProjectEdits &m_edits;
    ProjectLock &m_lock;
    const FileQuestions &m_questions;
    std::function<void()> m_beforeWriting; // of the save that is under way; mostly none
    bool m_saved = false;                  // how the last save ended
};
