#include "view/home/aboutinfo.h"

#include "app/theme.h"
#include "model/model.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QSysInfo>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AboutInfo)
};

QString boxVersion(const Model &model, const QString &version)
{
    // Without a hardware version no box was described yet: the firmware version is the model's initial value.
    if (model.hardwareVersion().isEmpty() || version.isEmpty())
        return model.isConnected() ? Texts::tr("unbekannt") : Texts::tr("nicht verbunden");
    return model.isConnected() ? version : Texts::tr("%1 (zuletzt bekannt, nicht verbunden)").arg(version);
}

QString qtVersion()
{
    const QString running = QString::fromLatin1(qVersion());
    return Texts::tr("%1 (übersetzt mit %2)").arg(running, QStringLiteral(QT_VERSION_STR));
}

/// Where unsaved work is kept, and how long the disk takes for it.
QString journalState(const JournalInfo &info)
{
    if (info.folder.isEmpty())
        return Texts::tr("wird nicht geführt");
    QStringList parts{QDir::toNativeSeparators(info.file.isEmpty() ? info.folder : info.file)};
    if (info.file.isEmpty())
        parts << Texts::tr("leer, da nichts ungespeichert ist");
    else
        parts << QLocale().formattedDataSize(QFileInfo(info.file).size());
    if (info.lastForced >= 0)
        parts << Texts::tr("Schreiben auf den Datenträger: zuletzt %1 ms, höchstens %2 ms")
                     .arg(info.lastForced)
                     .arg(info.longestForced);
    return parts.join(QLatin1Char('\n'));
}

QString licenceText(const char *file)
{
    QFile source(QStringLiteral(":/licences/") + QLatin1String(file));
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

} // namespace

QVector<AboutFact> aboutFacts(const Model &model)
{
    const QString kernel = QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion();
    return {{Texts::tr("Programm"), theme::applicationName + QLatin1Char(' ') + theme::applicationVersion},
            {Texts::tr("Projektdatei"), Texts::tr("Version %1").arg(theme::secondVersion)},
            {Texts::tr("Hersteller"), theme::organisationName},
            {Texts::tr("Hardware der Box"), boxVersion(model, model.hardwareVersion())},
            {Texts::tr("Firmware der Box"), boxVersion(model, model.firmwareVersion())},
            {QStringLiteral("Qt"), qtVersion()},
            {Texts::tr("Betriebssystem"), QSysInfo::prettyProductName()},
            {Texts::tr("Systemkern"), kernel},
            {Texts::tr("Plattform"),
             QSysInfo::currentCpuArchitecture() + QLatin1String(", ") + QGuiApplication::platformName()},
            {Texts::tr("Sicherung"), journalState(model.journalInfo())}};
}

QString aboutText(const QVector<AboutFact> &facts)
{
    QString text;
    for (const AboutFact &fact : facts) {
        const QString value = QString(fact.value).replace(QLatin1Char('\n'), QLatin1String("; "));
        text += fact.name + QLatin1String(": ") + value + QLatin1Char('\n');
    }
    return text;
}

QVector<AboutLicence> aboutLicences()
{
    const QString apache = licenceText("Apache-2.0.txt");
    const QString icons = licenceText("icons.txt") + QStringLiteral("\n\n") + apache;
    return {{QStringLiteral("Qt 5"), Texts::tr("Oberfläche und Netzwerk, dynamisch gebunden. LGPL Version 3."),
             licenceText("LGPL-3.txt")},
            {QStringLiteral("GPL Version 3"), Texts::tr("Die LGPL Version 3 von Qt nimmt auf sie Bezug."),
             licenceText("GPL-3.txt")},
            {QStringLiteral("Roboto"),
             Texts::tr("Schriften Regular, Medium und Bold, Copyright 2015 Google Inc. Apache 2.0."), apache},
            {QStringLiteral("Material Design Icons"), Texts::tr("Symbole. Apache 2.0."), icons}};
}
