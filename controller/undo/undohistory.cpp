#include "controller/undo/undohistory.h"

#include "controller/undo/memoryinuse.h"
#include "model/changescope.h"
#include "model/model.h"

#include <QUndoCommand>

#include <algorithm>
#include <utility>

/// A step on the stack. The stack runs a command when it gets it, but a step comes to the stack when it is done.
class UndoHistory::Command final : public QUndoCommand
{
public:
    Command(UndoHistory &history, Step step)
        : m_history(history)
        , m_step(std::move(step))
    {}
    void undo() override { m_history.toggle(*m_step); }
    void redo() override { m_history.toggle(*m_step); }
    [[nodiscard]] const Step &step() const { return m_step; }

private:
    UndoHistory &m_history;
    Step m_step;
};

UndoHistory::UndoHistory(Model &model, UndoLimits limits)
    : m_model(model)
    , m_limits(std::move(limits))
{
    if (!m_limits.memoryInUse)
        m_limits.memoryInUse = memoryInUse;
    m_model.edits().setListener(this);
}

UndoHistory::~UndoHistory()
{
    m_model.edits().setListener(nullptr);
}

// --- Steps come in -------------------------------------------------------------------------------------------------

void UndoHistory::stepMade(EditStep step)
{
    const bool joins = joinsLatest(step);
    const bool isAction = step.mergeKey.isEmpty();
    m_sinceInput.start();
    m_mayJoin = true;
    const int latest = m_stack.index() - 1;
    if (joins) {
        stepAt(latest)->append(step);
        if (stepAt(latest)->isNothing()) // what was typed has been taken back by typing
            keepOnly(0, latest);
    } else {
        m_isRearranging = true;
        m_stack.push(new Command(*this, std::make_shared<EditStep>(std::move(step))));
        m_isRearranging = false;
    }
    enforceLimits(m_stack.index() - 1);
    emit changed();
    if (isAction)
        emit actionAdded();
}

bool UndoHistory::joinsLatest(const EditStep &step) const
{
    return m_mayJoin && m_stack.index() > 0 && m_stack.index() == m_stack.count()
           && m_sinceInput.elapsed() < m_limits.pause && stepAt(m_stack.index() - 1)->isContinuedBy(step);
}

void UndoHistory::projectReplaced()
{
    m_isRearranging = true;
    m_stack.clear();
    m_isRearranging = false;
    emit changed();
}

// --- Undo and redo -------------------------------------------------------------------------------------------------

UndoHistory::Step UndoHistory::stepAt(int index) const
{
    return static_cast<const Command *>(m_stack.command(index))->step();
}

const EditStep *UndoHistory::stepToUndo() const
{
    return m_stack.canUndo() ? stepAt(m_stack.index() - 1).get() : nullptr;
}

const EditStep *UndoHistory::stepToRedo() const
{
    return m_stack.canRedo() ? stepAt(m_stack.index()).get() : nullptr;
}

void UndoHistory::undo(const ShotIds &untouched)
{
    if (!m_stack.canUndo())
        return;
    m_untouched = untouched;
    m_mayJoin = false;
    m_stack.undo();
    enforceLimits(m_stack.index());
    emit changed();
}

void UndoHistory::redo(const ShotIds &untouched)
{
    if (!m_stack.canRedo())
        return;
    m_untouched = untouched;
    m_mayJoin = false;
    m_stack.redo();
    enforceLimits(m_stack.index() - 1);
    emit changed();
}

void UndoHistory::toggle(EditStep &step)
{
    if (m_isRearranging)
        return;
    const ChangeScope bundle(&m_model); // also opens signals that a deletion has left blocked
    m_model.edits().toggle(step, m_untouched);
}

// --- Limits --------------------------------------------------------------------------------------------------------

qint64 UndoHistory::bytes() const
{
    qint64 bytes = 0;
    for (int i = 0; i < m_stack.count(); ++i)
        bytes += stepAt(i)->bytes();
    return bytes;
}

/// Asking the system takes longer than an edit may; within the fixed limit there is no need to.
qint64 UndoHistory::largestSize(qint64 used) const
{
    if (used <= m_limits.bytes)
        return m_limits.bytes;
    return std::max(m_limits.bytes, static_cast<qint64>(m_limits.share * double(m_limits.memoryInUse())));
}

void UndoHistory::enforceLimits(int latest)
{
    qint64 used = bytes();
    const qint64 most = largestSize(used);
    int last = m_stack.count() - 1;
    for (; used > most && last > latest; --last)
        used -= stepAt(last)->bytes();
    int first = 0;
    for (; used > most && first < latest; ++first)
        used -= stepAt(first)->bytes();
    if (last - first + 1 < m_stack.count())
        keepOnly(first, last - first + 1);
}

/// The stack cannot drop commands from its bottom: it gets those that stay anew.
void UndoHistory::keepOnly(int first, int count)
{
    std::vector<Step> kept;
    for (int i = first; i < first + count; ++i)
        kept.push_back(stepAt(i));
    const int index = std::clamp(m_stack.index() - first, 0, count);
    m_isRearranging = true;
    m_stack.clear();
    for (const Step &step : kept)
        m_stack.push(new Command(*this, step));
    m_stack.setIndex(index);
    m_isRearranging = false;
}
