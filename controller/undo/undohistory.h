#pragma once

#include "model/edit/editlistener.h"
#include "model/edit/editstep.h"

#include <QElapsedTimer>
#include <QObject>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <vector>

class Model;

/// How much the steps of a history may keep, and how they are joined.
struct UndoLimits
{
    qint64 bytes = 200LL << 20; ///< for what only the steps need, such as deleted samples
    double share = 0.2;         ///< of the memory in use: the larger of both counts
    /// Memory that the program uses, in bytes; 0 if it is not known.
    std::function<qint64()> memoryInUse;
    int pause = 5000; ///< ms without input that end a step of typing
};

/// The steps that can be undone and done again. Collects those of a model while it exists; forgets all of them when
/// another project is opened or begun.
///
/// What the steps keep is bounded: those that are undone and would be the last to be done again go first, then the
/// oldest ones. The step that was made, undone or done again last always stays.
class UndoHistory : public QObject, private EditListener
{
    Q_OBJECT

public:
    /// The model must outlive the history.
    explicit UndoHistory(Model &model, UndoLimits limits = {});
    ~UndoHistory() override;

    /// The step that undo() or redo() would take; nullptr for none. Valid until the history changes.
    [[nodiscard]] const EditStep *stepToUndo() const;
    [[nodiscard]] const EditStep *stepToRedo() const;
    /// Nothing happens without a step. A shot that has one of the ids stays in the project.
    void undo(const ShotIds &untouched = {});
    void redo(const ShotIds &untouched = {});
    [[nodiscard]] int count() const { return m_stack.count(); }
    /// Memory that only the steps need.
    [[nodiscard]] qint64 bytes() const;

signals:
    /// Another step is the next to be undone or done again.
    void changed();
    /// A step came that is not part of somebody's typing.
    void actionAdded();

private:
    class Command;
    using Step = std::shared_ptr<EditStep>;

    void stepMade(EditStep step) override;
    void projectReplaced() override;
    [[nodiscard]] Step stepAt(int index) const;
    [[nodiscard]] bool joinsLatest(const EditStep &step) const;
    void toggle(EditStep &step);
    void enforceLimits(int latest);
    [[nodiscard]] qint64 largestSize(qint64 used) const;
    void keepOnly(int first, int count);

    Model &m_model;
    UndoLimits m_limits;
    QUndoStack m_stack;
    ShotIds m_untouched{};        // while a step is being undone or done again
    bool m_isRearranging = false; // commands are moved, their steps are not to be touched
    bool m_mayJoin = false;       // nothing was undone since the latest step
    QElapsedTimer m_sinceInput;
};
