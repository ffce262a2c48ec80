#pragma once

#include <QObject>

class QAction;
class QToolBar;

/// The action's tool tip with its first key: "Neues Projekt anlegen (Strg+N)".
[[nodiscard]] QString tipWithKey(const QAction &action);

/// Shows the keys in the tool tips of a tool bar. A button that shows an action resets its tool tip whenever the
/// action changes, so the key is added when the tip is asked for.
class ActionTips : public QObject
{
public:
    /// Belongs to the bar, whose actions must be there already.
    explicit ActionTips(QToolBar *bar);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
