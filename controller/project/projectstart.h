#pragma once

#include "controller/desk.h"

#include <QObject>
#include <QStringList>

class DeferredQuestions;
class FileQuestions;
class ProjectLock;

/// Tells, once the window is shown, what became of the files that the program was started with.
class ProjectStart : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive this. `files` are those named on the command line; the model has opened the only
    /// one already.
    ProjectStart(const Desk &desk, DeferredQuestions &questions, const FileQuestions &fileQuestions,
                 const ProjectLock &lock, const QStringList &files);

signals:
    /// Somebody else has the project open, and the user wants to leave it alone.
    void declined();
    /// The same, and the user wants to work with a copy.
    void copyWanted();

private:
    void tell();
    void askHowToOpen();

    Model &m_model;
    const FileQuestions &m_questions;
    const ProjectLock &m_lock;
    QStringList m_files;
};
