#pragma once

#include "view/common/demostate.h"
#include "view/window/pages.h"

#include <QObject>

class ConnectionProgress;
class MainWindow;
class StatusDisplay;
struct ViewActions;

/// What the window shows of the link to the box: the connection and the attempt to connect, the recording, the
/// demonstration, the address. Sets actions, tabs and title through the window, which logs each step.
class LinkDisplay : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this object.
    LinkDisplay(MainWindow *window, ViewActions &actions, const Pages &pages, StatusDisplay &status);

    void showConnected(bool connected);
    void showRecording(bool running);
    void showDemo(DemoState state);
    void showAddress(const QString &address);

    void showProgress(const QString &text);
    void hideProgress();
    [[nodiscard]] bool isProgressShown() const;

private:
    void cancelProgress();
    void connectOrCancel();

    MainWindow *m_window;
    ViewActions &m_actions;
    Pages m_pages;
    StatusDisplay &m_status;
    ConnectionProgress *m_progress; ///< owned by the window
    bool m_isRecording = false;
};
