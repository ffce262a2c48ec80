#pragma once

#include "view/common/demostate.h"

#include <QObject>

class ConnectionProgress;
class StatusDisplay;
class View;
struct ViewActions;

/// What the window shows of the link to the box: the connection and the attempt to connect, the recording, the
/// demonstration, the address. Sets actions, tabs and title through the window, which logs each step.
class LinkDisplay : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this object.
    LinkDisplay(View *view, ViewActions &actions, StatusDisplay &status);

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

    View *m_view;
    ViewActions &m_actions;
    StatusDisplay &m_status;
    ConnectionProgress *m_progress; ///< owned by the view
    bool m_isRecording = false;
};
