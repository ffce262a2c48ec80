#pragma once

#include "view/window/windowplacement.h"

#include <QObject>

class MultiLanguageUtils;
class QMainWindow;
class Questions;

/// What the window keeps in the settings until the next start of the program: its place, the last folders of the file
/// dialogs and the language. The language is stored as soon as the user chooses it, the rest by write().
class WindowMemory : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this object.
    WindowMemory(QMainWindow *window, Questions &questions, MultiLanguageUtils &languages);

    /// Applies what is stored. A window that would be on no screen is moved onto one.
    void read();
    void write() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void readPlacement();
    void noteNormalPlacement(Qt::WindowStates before);

    QMainWindow *m_window;
    Questions &m_questions;
    MultiLanguageUtils &m_languages;
    WindowPlacement m_placement; // of the window when it does not fill the screen, up to date while it does
};
