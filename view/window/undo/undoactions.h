#pragma once

#include <QObject>

#include <functional>
#include <optional>

class QAction;
class QMainWindow;
class QMenu;

/// The actions that undo and redo: at the top of the window's menu, and with their keys Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y
/// everywhere in the window. A text field that has the focus and something of its own to undo gets the keys first, as
/// long as nothing else has happened since it was typed.
class UndoActions : public QObject
{
    Q_OBJECT

public:
    /// What a step is called in the language in use; std::nullopt for no step.
    using StepName = std::function<std::optional<QString>()>;

    /// The names are asked for whenever they are shown. The window owns the actions and must outlive this.
    UndoActions(QMainWindow *window, StepName undoName, StepName redoName);
    ~UndoActions() override;

    /// Names the steps that are next.
    void refresh();
    /// Something else than typing has happened: from now on the keys mean that, also in the field that has the focus.
    void forgetTyping() const;

signals:
    void undoTriggered();
    void redoTriggered();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addToMenu(QMenu *menu) const;
    void watchFocus(QWidget *before, QWidget *now);

    QMainWindow *m_window;
    StepName m_undoName;
    StepName m_redoName;
    QAction *m_undo;
    QAction *m_redo;
};
