#pragma once

#include <QObject>
#include <QPair>
#include <QVector>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QToolButton;
struct ViewActions;

/// The window's tool bar, and the menu that opens from it. Follows the width of the window: in a narrow one the bar
/// keeps what the box and the menu need, as icons; the rest is in the menu.
class MainToolBar : public QObject
{
    Q_OBJECT

public:
    /// The window owns bar and menu; the actions must outlive this object. The language menu, which is not owned,
    /// becomes a part of the menu.
    MainToolBar(QMainWindow *window, const ViewActions &actions, QMenu *languages);

    /// Titles and names in the current language; the actions must have their texts already.
    void retranslate();
    /// Opens the menu below the end of the bar.
    /// Behind the entries for projects.
    void addToProjectMenu(QAction *action) const;
    void popUpMenu() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillBar();
    void fillMenu(QMenu *languages);
    void addIconButton(QAction *action, const QString &icon);
    void addSpacer() const;
    void setCompact(bool compact);
    /// The buttons whose text changes stay as wide as their longest text needs, so that none moves away under the
    /// pointer.
    void holdWidths() const;
    /// Buttons that show only an icon get the text of their action as accessible name.
    void nameIconButtons() const;

    QMainWindow *m_window;
    const ViewActions &m_actions;
    QToolBar *m_bar;
    QMenu *m_menu;
    QVector<QPair<QToolButton *, QAction *>> m_iconButtons;
    QVector<QAction *> m_dispensable; ///< what the bar shows in a wide window only
};
