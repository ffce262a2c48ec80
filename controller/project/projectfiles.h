#pragma once

#include "controller/desk.h"
#include "controller/project/filequestions.h"
#include "controller/recordingend.h"

#include <QObject>

class FileProgress;
class LineQueue;
class ProjectEdits;
class ProjectLock;
class ProjectSaving;
enum class SaveAnswer;

/// New, open and quit: everything that gives up the project that is open, with the questions about unsaved changes. A
/// recording that runs is ended first, so that its last samples are in the project that they belong to.
class ProjectFiles : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the files. The project that is open already is remembered as a recent one.
    ProjectFiles(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits, ProjectSaving &saving,
                 const RecordingEnd &recording, ProjectLock &lock, const FileQuestions &questions);

    void newProject();
    void open();
    /// The file was named without a dialog; unsaved changes are asked about all the same.
    void openNamed(const QString &fileName);
    /// Goes on with the project as a copy that has no file yet.
    void detachFromFile();
    void quit();
    /// As quit(), but without a question and without giving up what is not saved; waits for a file that is being read
    /// or written.
    void leaveAtOnce();

signals:
    /// What was recorded with the box that is connected is thrown away.
    void boxDismissed();
    /// The program leaves the box, whose recording has been stopped.
    void boxGivenUp();
    /// The project in the model is another one now.
    void projectReplaced();
    /// The model has been cleared for a new project.
    void cleared();
    /// The measurements in the model are not those from before.
    void measurementsReplaced();
    /// Another project came in, or the attempt failed; the window shows the state of the device again.
    void shown();
    /// The program is about to end; the user has agreed to lose what is not saved.
    void quitting();
    /// The program is about to end although there may be unsaved changes.
    void interrupted();
    /// The last lines of the box have been taken.
    void interruptionTaken();

private:
    void replaceWith(const QString &fileName);
    [[nodiscard]] FileQuestions::Opening howToOpen(const QString &fileName);
    [[nodiscard]] bool replace(const QString &fileName);
    [[nodiscard]] bool mayReplaceWith(const QString &fileName);
    [[nodiscard]] bool mayEndRecording();
    [[nodiscard]] SaveAnswer askToSave();
    [[nodiscard]] bool saveChanges();
    [[nodiscard]] bool readAhead(const QString &fileName);
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
    RecordingEnd m_recording;
    ProjectLock &m_lock;
    const FileQuestions &m_questions;
};
