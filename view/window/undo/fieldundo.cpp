#include "view/window/undo/fieldundo.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextEdit>

namespace {

/// The line that is typed into; nullptr for a widget without one.
QLineEdit *lineOf(QWidget *field)
{
    if (auto *box = qobject_cast<QAbstractSpinBox *>(field))
        return box->findChild<QLineEdit *>();
    if (auto *box = qobject_cast<QComboBox *>(field))
        return box->lineEdit();
    return qobject_cast<QLineEdit *>(field);
}

/// The text of several lines that is typed into; nullptr for a widget without one.
QTextDocument *documentOf(QWidget *field)
{
    auto *plain = qobject_cast<QPlainTextEdit *>(field);
    if (plain && !plain->isReadOnly())
        return plain->document();
    auto *rich = qobject_cast<QTextEdit *>(field);
    return rich && !rich->isReadOnly() ? rich->document() : nullptr;
}

} // namespace

bool fieldundo::canUndo(QWidget *field)
{
    if (const QLineEdit *line = lineOf(field))
        return line->isUndoAvailable();
    const QTextDocument *document = documentOf(field);
    return document && document->isUndoAvailable();
}

bool fieldundo::canRedo(QWidget *field)
{
    if (const QLineEdit *line = lineOf(field))
        return line->isRedoAvailable();
    const QTextDocument *document = documentOf(field);
    return document && document->isRedoAvailable();
}

void fieldundo::undo(QWidget *field)
{
    if (QLineEdit *line = lineOf(field))
        line->undo();
    else if (auto *plain = qobject_cast<QPlainTextEdit *>(field))
        plain->undo();
    else if (auto *rich = qobject_cast<QTextEdit *>(field))
        rich->undo();
}

void fieldundo::redo(QWidget *field)
{
    if (QLineEdit *line = lineOf(field))
        line->redo();
    else if (auto *plain = qobject_cast<QPlainTextEdit *>(field))
        plain->redo();
    else if (auto *rich = qobject_cast<QTextEdit *>(field))
        rich->redo();
}

void fieldundo::forget(QWidget *field)
{
    if (QTextDocument *document = documentOf(field))
        document->clearUndoRedoStacks();
    QLineEdit *line = lineOf(field);
    if (!line || (!line->isUndoAvailable() && !line->isRedoAvailable()))
        return;
    const QSignalBlocker blocker(line);
    const int cursor = line->cursorPosition();
    line->setText(line->text()); // a line knows no other way
    line->setCursorPosition(cursor);
}
