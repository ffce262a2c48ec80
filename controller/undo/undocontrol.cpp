#include "controller/undo/undocontrol.h"

#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "model/model.h"
#include "view/window/view.h"

namespace {

UndoActions::StepName nameOf(const UndoHistory &history, const EditStep *(UndoHistory::*next)() const)
{
    return [&history, next]() -> std::optional<QString> {
        const EditStep *step = (history.*next)();
        return step ? std::optional(step->text()) : std::nullopt;
    };
}

} // namespace

UndoControl::UndoControl(const Desk &desk, ProjectEdits &edits, const Recorder &recorder)
    : m_desk(desk)
    , m_history(desk.model)
    , m_edits(edits)
    , m_recorder(recorder)
    , m_actions(&desk.view, nameOf(m_history, &UndoHistory::stepToUndo), nameOf(m_history, &UndoHistory::stepToRedo))
{
    connect(&m_history, &UndoHistory::changed, &m_actions, &UndoActions::refresh);
    connect(&m_history, &UndoHistory::actionAdded, &m_actions, &UndoActions::forgetTyping);
    connect(&m_actions, &UndoActions::undoTriggered, this, &UndoControl::undo);
    connect(&m_actions, &UndoActions::redoTriggered, this, &UndoControl::redo);
}

void UndoControl::undo()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    run(&UndoHistory::stepToUndo, &UndoHistory::undo, tr("Rückgängig gemacht: %1"));
}

void UndoControl::redo()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    run(&UndoHistory::stepToRedo, &UndoHistory::redo, tr("Wiederholt: %1"));
}

void UndoControl::run(Next next, Toggle toggle, const QString &pattern)
{
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    m_desk.view.commitInput(); // what is half typed is the latest step
    const EditStep *step = (m_history.*next)();
    if (!step || refuseWhileRecording(*step))
        return;
    const QString text = pattern.arg(step->text()); // the limits may let go of other steps, and so move this one
    const int clock = m_desk.model.clock();
    m_edits.markModified();
    (m_history.*toggle)(m_recorder.growingShot());
    m_actions.forgetTyping();
    m_desk.view.showStatus(text);
    if (m_desk.model.clock() != clock)
        emit samplingPeriodChanged();
}

/// Another period would give the shot that grows another time axis, half of it with samples of this one.
bool UndoControl::refuseWhileRecording(const EditStep &step)
{
    if (!m_recorder.isRunning() || step.before.clock == step.after.clock)
        return false;
    m_desk.view.showStatus(tr("Die Abtastrate lässt sich nicht ändern, solange eine Aufzeichnung läuft."));
    return true;
}
