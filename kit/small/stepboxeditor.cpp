#include "kit/small/stepboxeditor.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

namespace {

constexpr int kMostDigits = 11; // with the sign

} // namespace

StepBoxEditor::StepBoxEditor(QWidget *parent)
    : QLineEdit(parent)
{
    hide();
    setAlignment(Qt::AlignCenter);
    setFrame(false);
    setMaxLength(kMostDigits);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("-?[0-9]*")), this));
    connect(this, &QLineEdit::editingFinished, this, &StepBoxEditor::finish);
}

void StepBoxEditor::open(const QString &text, bool isSelected)
{
    setText(text);
    show();
    setFocus();
    if (isSelected)
        selectAll();
}

void StepBoxEditor::finish()
{
    if (isHidden())
        return;
    bool isNumber = false;
    const qint64 typed = text().toLongLong(&isNumber);
    dismiss();
    if (isNumber)
        emit numberEntered(typed);
}

void StepBoxEditor::dismiss()
{
    setText(QString()); // otherwise losing the focus would take the number
    if (hasFocus())
        parentWidget()->setFocus();
    hide();
}

void StepBoxEditor::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        dismiss();
        break;
    case Qt::Key_Return: // not for the button that a dialog has for this key
    case Qt::Key_Enter:
        finish();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        finish();
        emit stepKeyPressed(event->key());
        break;
    default:
        QLineEdit::keyPressEvent(event); // the other keys move within the text
    }
}
