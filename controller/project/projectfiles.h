#pragma once

#include "controller/desk.h"

#include <QObject>

class FileProgress;
class FileQuestions;
class LineQueue;
class ProjectEdits;
class ProjectLock;
class ProjectSaving;

/// New, open and quit: everything that gives up the project that is open, with the questions about unsaved changes.
class ProjectFiles : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the files. The project that is open already is remembered as a recent one.
    ProjectFiles(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits, ProjectSaving &saving,
                 ProjectLock &lock, const FileQuestions &questions);

    void newProject();
    void open();
    /// The file was named without a dialog; unsaved changes are asked about all the same.
    void openNamed(const QString &fileName);
    /// Goes on with the project as a copy that has no file yet.
    void detachFromFile();
    void quit();

signals:
    /// The user is leaving what was recorded with the box that is connected.
    void boxGivenUp();
    /// The model has been cleared for a new project.
    void cleared();
    /// The measurements in the model are not those from before.
    void measurementsReplaced();
    /// Another project came in, or the attempt failed; the window shows the state of the device again.
    void shown();
    /// The program is about to end.
    void quitting();

private:
    void replaceWith(const QString &fileName);
    [[nodiscard]] bool replace(const QString &fileName);
    [[nodiscard]] bool load(const QString &fileName);
    void showOpened(const QString &fileName, bool opened);
    [[nodiscard]] bool confirmQuit();
    [[nodiscard]] bool confirmLosingChanges();

    View &m_view;
    Model &m_model;
    Occupancy &m_occupancy;
    FileProgress &m_progress;
    LineQueue &m_lines;
    ProjectEdits &m_edits;
    ProjectSaving &m_saving;
    ProjectLock &m_lock;
    const FileQuestions &m_questions;
};
