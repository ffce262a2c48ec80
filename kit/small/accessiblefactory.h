#pragma once

#include <QAccessible>
#include <QObject>

/// Lets screen readers access every `Widget`, and what derives from it, through an `Interface`: a QAccessibleInterface
/// that is constructed from a pointer to the widget. Widgets call it in their constructors; only the first call has an
/// effect.
template <typename Widget, typename Interface>
void installAccessible()
{
    // Qt asks for every class from the most derived one upwards, each time with the name of that class. The function is
    // the same at every call, and Qt does not add a factory twice.
    QAccessible::installFactory([](const QString &className, QObject *object) -> QAccessibleInterface * {
        if (className != QLatin1String(Widget::staticMetaObject.className()))
            return nullptr;
        return new Interface(static_cast<Widget *>(object));
    });
}
