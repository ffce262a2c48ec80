#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

class QApplication;
class QSplashScreen;

constexpr std::chrono::milliseconds kSplashTime{3000};

/// Lets windows follow the scale of their screen, fractions such as 150 % included. Only before the application object
/// is created.
void followScreenScale();

/// Gives the application its look, before any widget exists: fonts, the Fusion style, the style sheet, the kit's theme
/// and the German texts of Qt's own dialogs. Also what a test or a demonstration calls to look like the program.
void prepareApplication(QApplication &application);

/// Adds Roboto Regular, Medium and Bold from the resources. One that cannot be added is logged.
void loadFonts();

/// Fills a kit theme with the application's colours and installs it on the kit's style.
void installKitTheme();

/// Shows the splash picture, 1200 pixels wide, blocks for the time given and closes the window. Without the picture
/// an empty splash is shown for the same time.
void showSplash(QSplashScreen &splash, std::chrono::milliseconds time = kSplashTime);

/// The project file named on the command line: the argument after the program's name if it is the only one, else
/// empty.
[[nodiscard]] QString projectPath(const QStringList &arguments);

/// Where the program keeps what is not saved yet: a folder of the user's, which need not exist.
[[nodiscard]] QString journalFolder();

/// True on a computer that this build may run on; otherwise tells the user so in a message box.
[[nodiscard]] bool checkCopyProtection();
