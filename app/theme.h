#pragma once

#include <QColor>
#include <QString>

/// Names, colours and style sheets that every part of the program shares. Constants only, with one exception:
/// deviceAddress(), which also looks at the environment.
namespace theme {

// --- Names ---
inline const QString applicationName = QStringLiteral("Ventaro");
inline const QString applicationVersion = QStringLiteral("8.0");
/// The maker, also the organisation that the settings are kept under.
inline const QString organisationName = QStringLiteral("Tarnwald");
/// The project file's generation, shown beside the program version.
inline const QString secondVersion = QStringLiteral("7");

inline const QString iconPrefix = QStringLiteral(":/icons/");
inline const QString logoPath = QStringLiteral(":/icons/Ventaro-logo-mini.png");
inline const QString splashPath = QStringLiteral(":/icons/Splashscreen-2.png");

// --- The measuring box ---
inline const QString deviceUser = QStringLiteral("pi");
inline const QString devicePassword = QStringLiteral(VENTARO_DEVICE_PASSWORD);
/// IPv4 address that the build was configured with.
inline const QString defaultDeviceAddress = QStringLiteral(VENTARO_DEVICE_ADDRESS);

/// The address to offer to the user: the environment variable VENTARO_DEVICE_ADDRESS if it is set and not blank,
/// else defaultDeviceAddress. The text is not checked.
[[nodiscard]] QString deviceAddress();

// --- Colours: each as a name for style sheets and as a QColor for painting ---
inline const QString colorPrimary = QStringLiteral("#2372A4");
inline const QString colorText = QStringLiteral("black");
inline const QString colorBorder = QStringLiteral("darkGray");
inline const QString colorDark = QStringLiteral("#555555");
inline const QString colorMedium = QStringLiteral("#AAAAAA");
inline const QString colorLight = QStringLiteral("#EEEEEE");
inline const QString colorBackground = QStringLiteral("white");

inline const QColor qColorPrimary(colorPrimary);
inline const QColor qColorText(colorText);
inline const QColor qColorBorder(colorBorder);
inline const QColor qColorDark(colorDark);
inline const QColor qColorMedium(colorMedium);
inline const QColor qColorLight(colorLight);
inline const QColor qColorBackground(colorBackground);

inline const QColor qColorRed(Qt::red);
inline const QColor qColorDarkRed(Qt::darkRed);
inline const QColor qColorDarkGreen(Qt::darkGreen);
inline const QColor qColorDarkBlue(Qt::darkBlue);
inline const QColor qColorDarkCyan(Qt::darkCyan);
inline const QColor qColorDarkOrange(QStringLiteral("darkorange"));

} // namespace theme
