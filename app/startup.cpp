#include "app/startup.h"

#include "app/logging.h"
#include "app/machinelicence.h"
#include "app/stylesheets.h"
#include "app/theme.h"
#include "kit/material/qtmaterialpalette.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"
#include "view/window/qttexts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>
#include <QPixmap>
#include <QSplashScreen>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QSysInfo>
#include <QThread>

#include <memory>

namespace {

constexpr int kSplashWidth = 1200;

/// In the usual sizes of title bars and task bars: scaled down, the lines of the large drawing would be too thin.
QIcon windowIcon()
{
    QIcon icon;
    for (int size : {16, 22, 24, 32, 48, 64, 256})
        icon.addFile(QStringLiteral(":/window/%1.png").arg(size));
    return icon;
}

} // namespace

void loadFonts()
{
    for (const char *name : {"Roboto-Regular.ttf", "Roboto-Medium.ttf", "Roboto-Bold.ttf"}) {
        if (QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/") + QLatin1String(name)) == -1)
            qCDebug(lcApp).noquote().nospace() << "Font file '" << name << "' could not be loaded!";
    }
}

void installKitTheme()
{
    using namespace QtMaterialPalette;
    auto kitTheme = std::make_unique<QtMaterialTheme>();
    kitTheme->setColor(QStringLiteral("primary1"), theme::qColorPrimary);
    kitTheme->setColor(QStringLiteral("primary2"), cyan700());
    kitTheme->setColor(QStringLiteral("primary3"), lightBlack());
    kitTheme->setColor(QStringLiteral("accent1"), theme::qColorPrimary);
    kitTheme->setColor(QStringLiteral("accent2"), grey100());
    kitTheme->setColor(QStringLiteral("accent3"), grey500());
    kitTheme->setColor(QStringLiteral("text"), theme::qColorPrimary);
    kitTheme->setColor(QStringLiteral("alternateText"), white());
    kitTheme->setColor(QStringLiteral("canvas"), theme::qColorBackground);
    kitTheme->setColor(QStringLiteral("border"), grey300());
    kitTheme->setColor(QStringLiteral("disabled"), minBlack());
    kitTheme->setColor(QStringLiteral("disabled2"), faintBlack());
    kitTheme->setColor(QStringLiteral("disabled3"), grey300());
    QtMaterialStyle::instance().setTheme(std::move(kitTheme));
}

void followScreenScale()
{
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void prepareApplication(QApplication &application)
{
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setDesktopFileName(QStringLiteral("de.tarnwald.ventaro")); // finds the icon under Wayland
    // The built-in texts are German, so numbers are formatted in German too, whatever the locale of the computer.
    QLocale::setDefault(QLocale(QLocale::German));
    loadFonts();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setStyleSheet(theme::styleApplication);
    installKitTheme();
    installQtTexts(QStringLiteral("de"));
    QApplication::setWindowIcon(windowIcon());
}

void showSplash(QSplashScreen &splash, std::chrono::milliseconds time)
{
    const QPixmap picture(theme::splashPath);
    if (!picture.isNull()) { // the width counts device pixels, of which a fine screen's picture has more
        splash.setPixmap(
            picture.scaledToWidth(qRound(kSplashWidth * picture.devicePixelRatio()), Qt::FastTransformation));
    }
    // Blocked on purpose: the splash is closed before any other object of the program exists.
    splash.setWindowFlags(splash.windowFlags() | Qt::WindowStaysOnTopHint);
    splash.show();
    QCoreApplication::processEvents();
    QThread::msleep(static_cast<unsigned long>(time.count()));
    splash.close();
}

QString projectPath(const QStringList &arguments)
{
    return arguments.size() == 2 ? arguments.at(1) : QString();
}

QString journalFolder()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return data.isEmpty() ? QString() : data + QStringLiteral("/journal");
}

bool checkCopyProtection()
{
    const QByteArray machineId = QSysInfo::machineUniqueId();
    if (isMachineLicensed(machineId, licensedMachines()))
        return true;
    qCDebug(lcApp) << "ERROR: machine not licensed!";
    const QString text =
        QCoreApplication::translate("Startup", "Ventaro ist für diesen Rechner nicht freigeschaltet.\n\n"
                                               "Kennung dieses Rechners:\n%1");
    QMessageBox::critical(nullptr, theme::applicationName, text.arg(machineHash(machineId)));
    return false;
}
