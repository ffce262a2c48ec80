#include "view/window/undo/undoactions.h"

#include "app/theme.h"
#include "view/common/actionicon.h"
#include "view/window/undo/fieldundo.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>

#include <utility>

namespace {

constexpr int kLongestName = 60; // characters of a step in the menu

QAction *newAction(QWidget *window, const char *name, const QString &icon, const QList<QKeySequence> &keys)
{
    auto *action = new QAction(window);
    action->setObjectName(QLatin1String(name));
    action->setIcon(actionIcon(icon, theme::qColorPrimary));
    action->setShortcuts(keys);
    window->addAction(action); // so that the keys work while the menu is closed
    return action;
}

/// The name of a sensor may be long, and hold an "&", which a menu would take for a mnemonic.
QString menuText(const QString &pattern, const QString &name)
{
    const QString shown = name.size() > kLongestName ? name.left(kLongestName - 1) + QStringLiteral("…") : name;
    return pattern.arg(QString(shown).replace(QLatin1Char('&'), QLatin1String("&&")));
}

bool isKeyOf(const QAction *action, const QKeyEvent &event)
{
    return action->shortcuts().contains(QKeySequence(event.key() | static_cast<int>(event.modifiers())));
}

} // namespace

UndoActions::UndoActions(QMainWindow *window, StepName undoName, StepName redoName)
    : m_window(window)
    , m_undoName(std::move(undoName))
    , m_redoName(std::move(redoName))
    , m_undo(newAction(window, "actionUndo", QStringLiteral("undo.png"), {Qt::CTRL + Qt::Key_Z}))
    , m_redo(newAction(window, "actionRedo", QStringLiteral("redo.png"),
                       {Qt::CTRL + Qt::SHIFT + Qt::Key_Z, Qt::CTRL + Qt::Key_Y}))
{
    if (auto *menu = window->findChild<QMenu *>(QStringLiteral("menu")))
        addToMenu(menu);
    connect(m_undo, &QAction::triggered, this, &UndoActions::undoTriggered);
    connect(m_redo, &QAction::triggered, this, &UndoActions::redoTriggered);
    connect(qApp, &QApplication::focusChanged, this, &UndoActions::watchFocus);
    window->installEventFilter(this);
    watchFocus(nullptr, QApplication::focusWidget());
    refresh();
}

UndoActions::~UndoActions() = default;

void UndoActions::addToMenu(QMenu *menu) const
{
    QAction *first = menu->actions().value(0);
    menu->insertActions(first, {m_undo, m_redo});
    menu->insertSeparator(first);
}

void UndoActions::refresh()
{
    const std::optional<QString> undo = m_undoName();
    const std::optional<QString> redo = m_redoName();
    m_undo->setEnabled(undo.has_value());
    m_redo->setEnabled(redo.has_value());
    m_undo->setText(undo ? menuText(tr("%1 rückgängig machen"), *undo) : tr("Rückgängig"));
    m_redo->setText(redo ? menuText(tr("%1 wiederholen"), *redo) : tr("Wiederholen"));
    m_undo->setStatusTip(tr("Nimmt den letzten Schritt zurück"));
    m_redo->setStatusTip(tr("Macht den zuletzt zurückgenommenen Schritt noch einmal"));
}

void UndoActions::forgetTyping() const
{
    fieldundo::forget(QApplication::focusWidget());
}

/// Only the field that has the focus: a filter on the application would see every event.
void UndoActions::watchFocus(QWidget *before, QWidget *now)
{
    if (before && before != m_window)
        before->removeEventFilter(this);
    if (now && now != m_window && now->window() == m_window)
        now->installEventFilter(this);
}

/// A field claims these keys even if it has nothing to undo. It gets them only if it has; else they belong to the
/// actions.
bool UndoActions::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && watched == m_window)
        refresh();
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isUndo = isKeyOf(m_undo, *key);
    auto *field = qobject_cast<QWidget *>(watched);
    if (!field || field != QApplication::focusWidget() || (!isUndo && !isKeyOf(m_redo, *key)))
        return QObject::eventFilter(watched, event);
    const bool takes = isUndo ? fieldundo::canUndo(field) : fieldundo::canRedo(field);
    event->setAccepted(takes);
    if (takes && event->type() == QEvent::KeyPress)
        isUndo ? fieldundo::undo(field) : fieldundo::redo(field);
    return true;
}
