#include "view/common/inputcommit.h"

#include <QAbstractSpinBox>
#include <QPointer>

void commitInputOf(const QWidget *window)
{
    const QPointer<QWidget> field = window->focusWidget();
    if (auto *box = qobject_cast<QAbstractSpinBox *>(field.data()))
        box->interpretText();
    if (!field || !field->hasFocus())
        return;
    // Fields, and editors in tables, take over their text when they lose the focus. An editor is
    // destroyed by that; its table gets the focus then.
    const QPointer<QWidget> table = field->parentWidget();
    field->clearFocus();
    if (QWidget *next = field && field->isVisible() ? field.data() : table.data())
        next->setFocus(Qt::OtherFocusReason);
}
