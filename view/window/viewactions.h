#pragma once

#include "view/window/actionstate.h"

#include <QCoreApplication>
#include <QStringList>

class QAction;
class QWidget;

/// All actions of the main window with their texts, keys and states. They belong to the owner and are told apart by
/// their object names.
struct ViewActions
{
    Q_DECLARE_TR_FUNCTIONS(ViewActions)

public:
    explicit ViewActions(QWidget *owner);

    /// Texts in the current language, those of connection and recording as they were shown last.
    void retranslate() const;
    /// Enables the action and tints its icon; nothing happens for other numbers.
    void setState(Actions which, ActionState state) const;
    /// The texts of the connect action; disconnecting is possible while connected only.
    void showLink(bool connected);
    /// The texts of the recording action, and its icon while recording.
    void showRecording(bool running);
    /// All texts that an action can have; empty for an action whose text never changes.
    [[nodiscard]] QStringList changingTexts(const QAction *action) const;

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
    enum class Link { NotShownYet, NotConnected, Connected };

    void createProjectActions(QWidget *owner);
    void createBoxActions(QWidget *owner);
    void createOtherActions(QWidget *owner);
    [[nodiscard]] QAction *action(Actions which) const;
    void retranslateProject() const;
    void retranslateBox() const;
    void retranslateOther() const;
    void retranslateLink() const;
    void retranslateRecording() const;

    Link m_link = Link::NotShownYet;
    bool m_isRecording = false;
};
