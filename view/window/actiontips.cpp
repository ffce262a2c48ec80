#include "view/window/actiontips.h"

#include <QAction>
#include <QHelpEvent>
#include <QKeySequence>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

QString tipWithKey(const QAction &action)
{
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? action.toolTip() : QStringLiteral("%1 (%2)").arg(action.toolTip(), key);
}

ActionTips::ActionTips(QToolBar *bar)
    : QObject(bar)
{
    const QList<QAction *> actions = bar->actions();
    for (QAction *action : actions) {
        if (auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action)))
            button->installEventFilter(this);
    }
}

bool ActionTips::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    auto *button = qobject_cast<QToolButton *>(watched);
    if (!button || !button->defaultAction())
        return false;
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), tipWithKey(*button->defaultAction()), button);
    return true;
}
