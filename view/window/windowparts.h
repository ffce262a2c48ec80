#pragma once

#include "view/window/backup/backupsetting.h"
#include "view/window/exports.h"
#include "view/window/linkdisplay.h"
#include "view/window/maintoolbar.h"
#include "view/window/modeldisplay.h"
#include "view/window/multilanguageutils.h"
#include "view/window/pagetable.h"
#include "view/window/prompts/questions.h"
#include "view/window/recentlists.h"
#include "view/window/statusdisplay.h"
#include "view/window/viewactions.h"
#include "view/window/windowmemory.h"

class AboutDialog;

/// Makes the parts of the main window, in the order in which they need each other, and owns them. Each part gets what
/// it needs through its constructor; none of them sees this.
struct WindowParts
{
    /// Without prompts the user is asked in dialogs. The window owns all widgets.
    WindowParts(MainWindow *window, Model *model, std::unique_ptr<UserPrompts> prompts);

    /// Applies what the settings hold.
    void readSettings();
    /// Pages and actions as for an empty project.
    void showEmptyProject();
    /// All texts in the language in use.
    void retranslate();
    /// Opens the dialog with the versions and licences, or brings it to the front.
    void showAbout();

    MainWindow *window;
    Model *model;
    Questions questions;
    ViewActions actions;
    BackupSetting backup;
    MultiLanguageUtils languages;
    MainToolBar toolBar;
    PageTable pages;
    StatusDisplay status;
    LinkDisplay link;
    ModelDisplay display;
    RecentLists recent;
    Exports exports;
    WindowMemory memory;
    AboutDialog *about = nullptr; ///< made when it is first asked for; owned by the window
};
