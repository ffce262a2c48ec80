#pragma once

#include "view/window/actionstate.h"

#include <QMainWindow>

/// The main window as its parts see it: the signals for what the user wants, and the operations that a part carries out
/// through the window so that each step is logged. Keeps parts and View from including each other; View is the only
/// implementation.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    virtual void setActionState(Actions action, ActionState state) = 0;
    /// Numbers that do not exist are ignored.
    virtual void setTabEnabled(int tab, bool enabled) = 0;
    virtual void setConnected(bool connected) = 0;
    virtual void setRecordingRunning(bool running) = 0;
    virtual void hideProgress() = 0;
    /// Shown in the status bar for the time given, 0: until replaced.
    virtual void showStatus(const QString &text, int milliseconds = 10000) = 0;
    /// File dialogs start in the last folder and remember the one chosen. Empty: cancelled.
    [[nodiscard]] virtual QString askSaveFile(const QString &title, const QString &filter) = 0;
    /// As askSaveFile(), for files that must end with a suffix such as ".csv": it is appended unless it is there. If
    /// there is a file of the longer name, which the dialog could not ask about, the user is asked whether to overwrite
    /// it, under the title of the dialog or the one given. Empty also if not.
    [[nodiscard]] virtual QString askSaveFileWithSuffix(const QString &title, const QString &filter,
                                                        const QString &suffix,
                                                        Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive,
                                                        const QString &overwriteTitle = {}) = 0;

public slots:
    /// Shows everything as it is in the model.
    virtual void updateView() = 0;

signals:
    void newProject();
    void openProject();
    void saveProject();
    void saveProjectAs();
    void importBlackBox();
    void firmwareUpdate();
    void connectDisconnect();
    void calibrate();
    void startStopRecording();
    void quit();
    void connectToAddress(const QString &address);
    void startStopDemo();
    void openImportBlackBoxData();
    void saveOszi();
    void saveCSV();
    void saveTerminal();
    void clearLogger();
    void loggerHeadline();
    /// The line as typed, without a line feed.
    void terminalSend(const QString &line);
    void terminalClear(); ///< the page has cleared itself; nothing uses it yet
    void about();
    // The five that follow are emitted, but nothing uses them yet: the tabs report the same with more detail.
    void clearMarkers();
    void commentChanged();
    void imageButtonClicked();
    void imageLabelClicked();
    void offsetChanged(double offset);
    /// The user named a project file to open otherwise than in a dialog: on the start page, or dropped onto the window.
    void openProjectFile(const QString &fileName);
    /// The user gave up an attempt to connect.
    void progressCancelled();
};
