#pragma once

class QWidget;

/// Undo and redo of a text field: what is typed into it, until another text is shown there.
namespace fieldundo {

/// False for a widget that is no text field, or has nothing to undo or to do again.
[[nodiscard]] bool canUndo(QWidget *field);
[[nodiscard]] bool canRedo(QWidget *field);
/// Nothing happens unless the field can.
void undo(QWidget *field);
void redo(QWidget *field);
/// What was typed so far can no longer be undone in the field, nor done again.
void forget(QWidget *field);

} // namespace fieldundo
