#pragma once

#include <QCoreApplication>
#include <QPair>
#include <QVector>

class QAction;
class QMenu;
class QObject;
class QToolBar;
class QToolButton;
class QWidget;

/// All actions of the main window. They belong to the owner and are told apart by their object names.
struct ViewActions
{
    Q_DECLARE_TR_FUNCTIONS(View)

public:
    explicit ViewActions(QWidget *owner);

    /// Texts in the current language. The texts of connection and recording are those for "not connected" and "not
    /// recording"; the window sets them anew.
    void retranslate() const;
    /// The actions used most, the first three with their text; the menu at the right.
    void fillToolBar(QToolBar *bar);
    /// In a narrow window the bar keeps what the box and the menu need, as icons; the rest is in the menu.
    void setCompact(QToolBar *bar, bool compact) const;
    /// The buttons whose text changes keep the room of the longest, so that none moves away under the pointer.
    void holdWidths(const QToolBar *bar) const;
    /// What a tool button shows as an icon alone gets its text as accessible name.
    void nameToolButtons() const;
    /// With the language menu, which is not owned, among the others.
    void fillMenu(QMenu *menu, QMenu *languages);

    QAction *connectBox = nullptr;
    QAction *disconnectBox = nullptr;
    QAction *about = nullptr;
    QAction *saveTerminal = nullptr;
    QAction *saveCsv = nullptr;
    QAction *saveOszi = nullptr;
    QAction *newProject = nullptr;
    QAction *openProject = nullptr;
    QAction *saveProject = nullptr;
    QAction *saveAs = nullptr;
    QAction *startRecording = nullptr;
    QAction *calibrate = nullptr;
    QAction *menu = nullptr;
    QAction *quit = nullptr;
    QAction *german = nullptr;
    QAction *english = nullptr;
    QAction *openBlackBox = nullptr;
    QAction *firmwareUpdate = nullptr;

private:
    void addIconButton(QToolBar *bar, QAction *action, const QString &icon);
    void createProjectActions(QWidget *owner);
    void createBoxActions(QWidget *owner);
    void createOtherActions(QWidget *owner);
    void retranslateProject() const;
    void retranslateBox() const;
    void retranslateOther() const;

    QVector<QPair<QToolButton *, QAction *>> m_iconButtons;
    QVector<QAction *> m_dispensable; ///< what the tool bar shows in a wide window only
};
