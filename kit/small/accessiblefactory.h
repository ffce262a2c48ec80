#pragma once

#include <QAccessible>
#include <QObject>

/// Has screen readers see every `Widget`, and what derives from it, through an `Interface`, a QAccessibleInterface that
/// is made from a pointer to the widget. Widgets call it in their constructors; once is enough, and more does nothing.
template <typename Widget, typename Interface>
void installAccessible()
{
    // Asked for every class from the most derived one upwards, with the name of the one in turn. The function is the
    // same at every call, and a factory that is known already is not added again.
    QAccessible::installFactory([](const QString &className, QObject *object) -> QAccessibleInterface * {
        if (className != QLatin1String(Widget::staticMetaObject.className()))
            return nullptr;
        return new Interface(static_cast<Widget *>(object));
    });
}
