#pragma once

#include "controller/desk.h"
#include "controller/undo/undohistory.h"
#include "view/window/undo/undoactions.h"

#include <QObject>

class ProjectEdits;
class Recorder;

/// Undo and redo as the user asks for them: refused while something else is under way, told in the status bar. The
/// project counts as modified afterwards.
class UndoControl : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the control.
    UndoControl(const Desk &desk, ProjectEdits &edits, const Recorder &recorder);

    void undo();
    void redo();

signals:
    /// The sampling period of the project is another one.
    void samplingPeriodChanged();

private:
    using Next = const EditStep *(UndoHistory::*)() const;
    using Toggle = void (UndoHistory::*)(const ShotIds &untouched);

    void run(Next next, Toggle toggle, const QString &pattern);
    [[nodiscard]] bool refuseWhileRecording(const EditStep &step);

    Desk m_desk;
    UndoHistory m_history;
    ProjectEdits &m_edits;
    const Recorder &m_recorder;
    UndoActions m_actions;
};
