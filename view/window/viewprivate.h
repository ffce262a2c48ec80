#pragma once

#include "view/window/multilanguageutils.h"
#include "view/window/view.h"
#include "view/window/viewactions.h"
#include "view/window/windowplacement.h"

#include <QTimer>
#include <QVector>

class AboutDialog;
class ConnectionProgress;
class QLabel;
class SideTabWidget;

/// What the window consists of, and what it knows beyond the model.
struct View::Private
{
    enum class Link { Unknown, NotConnected, Connected };

    struct Message
    {
        QString title;
        QString text;
        bool isWarning = false;
    };

    Private(View *view, Model *data, std::unique_ptr<UserPrompts> questions);

    View *q;
    Model *model;
    std::unique_ptr<UserPrompts> prompts;
    ViewActions actions;
    MultiLanguageUtils languages;

    QToolBar *toolBar = nullptr;
    QMenu *menu = nullptr;
    SideTabWidget *tabs = nullptr;
    TabHome *tabHome = nullptr;
    TabProject *tabProject = nullptr;
    TabSensors *tabSensors = nullptr;
    TabOszilloscope *tabOszi = nullptr;
    TabEvaluation *tabEvaluation = nullptr;
    TabWebConfig *tabWebConfig = nullptr;
    TabDataLogger *tabLogger = nullptr;
    TabTerminal *tabTerminal = nullptr;
    TabBlackBox *tabBlackBox = nullptr;
    QLabel *fileLabel = nullptr;
    QLabel *demoLabel = nullptr;
    ConnectionProgress *progress = nullptr;
    AboutDialog *about = nullptr; ///< created when it is first asked for

    Link link = Link::Unknown;
    bool recording = false;
    bool asking = false;
    bool dataPending = false;
    bool projectPending = false;
    QString lastDir;
    QStringList recentProjects;
    QStringList recentAddresses;
    std::function<bool(const QString &)> isValidAddress;
    WindowPlacement placement; // of the window when it does not fill the screen, up to date while it does
    QVector<Message> waitingMessages;
    QTimer dataTimer;    // bundles data changes
    QTimer projectTimer; // bundles changes of description and settings
    QTimer fileTimer;    // looks whether the project's file or its modified mark changed: the model does not tell
    QTimer statusTimer;  // runs while a message of the program must not be replaced by a status tip

    // --- Building the window ---
    void createWindow();
    void createToolBar();
    void createTabs();
    void createTabKeys();
    void createStatusBar();
    void createDemoLabel();
    void createTimers();
    void connectActions();
    void connectExports();
    void connectTabs();
    void connectHome();
    void relayOsziControls();
    void connectModel();
    void connectLanguages();
    void readSettings();
    void readRecent();
    void storeRecentProjects();
    void noteNormalPlacement(Qt::WindowStates before);
    void retranslate();

    // --- State ---
    [[nodiscard]] QAction *action(Actions which) const;
    void showLink(bool connected);
    void showRecordingTexts() const;
    void refreshData();
    void refreshProject();
    void refreshFileLabel();
    void deleteImage(int index);

    // --- Questions ---
    /// The answer to the question, or the refusal if another one is open.
    template <typename Answer, typename Question>
    [[nodiscard]] Answer oneAtATime(Answer refusal, Question question);
    [[nodiscard]] QMessageBox::StandardButton ask(const QString &title, const QString &text,
                                                  QMessageBox::StandardButtons buttons,
                                                  QMessageBox::StandardButton refusal);
    void showOrQueue(const Message &message);
    void showWaitingMessage();
    void rememberFolder(const QString &file);

    // --- Files written by the window itself ---
    [[nodiscard]] bool refuseWhileBusy();
    [[nodiscard]] QString askExportFile(const QString &title, const QString &filter, const QString &suffix);
    void exportTerminal();
    void exportOszi();
    void exportCsv();
};
