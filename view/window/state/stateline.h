#pragma once

#include "view/window/state/linkstatus.h"
#include "view/window/state/statetext.h"

#include <QFrame>

class ElidedLabel;
class QMainWindow;
class QPushButton;

/// The line above the status bar that shows on every page how link and recording are, to be read from two metres.
class StateLine : public QFrame
{
    Q_OBJECT

public:
    /// Adds itself to the window, which owns it.
    explicit StateLine(QMainWindow *window);

    /// Cheap if nothing has changed.
    void showStatus(const LinkStatus &status);

signals:
    void stopClicked();
    void acknowledged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void createButtons();
    void showText(const StateText &text);
    void showMood(StateText::Mood mood);
    void retranslateUi();

    LinkStatus m_status;
    StateText m_shown;
    ElidedLabel *m_head;
    ElidedLabel *m_detail;
    QPushButton *m_stop = nullptr;
    QPushButton *m_acknowledge = nullptr;
};
