#pragma once

#include <QLineEdit>

/// The field in which a number is typed into a step box. It is hidden until open(); Enter and losing the focus take the
/// number, Escape drops it; a key that steps takes it before the step.
class StepBoxEditor : public QLineEdit
{
    Q_OBJECT

public:
    /// The parent gets the focus when the field is closed.
    explicit StepBoxEditor(QWidget *parent);

    /// Shows the text with the cursor behind it, or all of it selected, to be replaced.
    void open(const QString &text, bool isSelected);
    /// Takes what was typed if it is a number, and hides. Does nothing while hidden.
    void finish();
    /// Drops what was typed, and hides.
    void dismiss();

signals:
    /// A number was taken; it may lie outside any range. The field is hidden already.
    void numberEntered(qint64 number);
    /// A key that moves by steps or pages; a number typed before was taken.
    void stepKeyPressed(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
