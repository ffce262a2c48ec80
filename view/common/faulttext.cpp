#include "view/common/faulttext.h"

#include "model/storage/atomicfile.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStorageInfo>

namespace {

using Kind = FileFault::Kind;

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString folderOf(const FileFault &fault)
{
    return shown(QFileInfo(fault.path).absolutePath());
}

/// Where the medium is, as the user finds it in a file manager: "/media/stick".
QString mediumOf(const FileFault &fault)
{
    const QString root = QStorageInfo(QFileInfo(fault.path).absolutePath()).rootPath();
    return root.isEmpty() ? folderOf(fault) : shown(root);
}

/// Rounded up: that much more has to become free.
QString sizeText(qint64 bytes)
{
    constexpr qint64 kKilobyte = 1000;
    constexpr qint64 kMegabyte = 1000 * kKilobyte;
    const QLocale locale;
    if (bytes < kMegabyte)
        return locale.toString((bytes + kKilobyte - 1) / kKilobyte) + QStringLiteral(" kB");
    return locale.toString((bytes + kMegabyte - 1) / kMegabyte) + QStringLiteral(" MB");
}

QString withSystemText(const QString &sentence, const FileFault &fault)
{
    return fault.systemText.isEmpty() ? sentence + QLatin1Char('.')
                                      : sentence + QStringLiteral(" (") + fault.systemText + QStringLiteral(").");
}

} // namespace

QString FaultText::reason(const FileFault &fault)
{
    for (const auto find : {readingReason, contentReason, writingReason, mediumReason}) {
        const QString text = find(fault);
        if (!text.isEmpty())
            return text;
    }
    return {};
}

QString FaultText::readingReason(const FileFault &fault)
{
    switch (fault.kind) {
    case Kind::NotThere:
        return tr("Die Datei ist nicht da.");
    case Kind::NoFolder:
        return tr("Der Ordner %1 ist nicht da.").arg(folderOf(fault));
    case Kind::IsFolder:
        return tr("Unter diesem Namen gibt es einen Ordner.");
    case Kind::NotRegular:
        return tr("Unter diesem Namen gibt es keine gewöhnliche Datei.");
    case Kind::NoPermission:
        return tr("Dazu fehlen die Zugriffsrechte.");
    case Kind::ReadError:
        return withSystemText(tr("Beim Lesen ist ein Fehler aufgetreten"), fault);
    case Kind::OutOfMemory:
        return tr("Der Arbeitsspeicher reicht nicht aus.");
    default:
        return {};
    }
}

QString FaultText::contentReason(const FileFault &fault)
{
    switch (fault.kind) {
    case Kind::NotJson:
        return tr("Die Datei ist beschädigt oder kein Ventaro-Projekt (Zeile %1, Byte %2).")
            .arg(fault.line)
            .arg(fault.byte);
    case Kind::CutOff:
        return QFileInfo(fault.path).size() == 0
                   ? tr("Die Datei ist leer.")
                   : tr("Die Datei ist unvollständig: Sie bricht in Zeile %1 ab (Byte %2).")
                         .arg(fault.line)
                         .arg(fault.byte);
    case Kind::NoProject:
        return tr("Die Datei enthält kein Ventaro-Projekt.");
    default:
        return {};
    }
}

QString FaultText::writingReason(const FileFault &fault)
{
    switch (fault.kind) {
    case Kind::WriteError:
        return withSystemText(tr("Beim Schreiben ist ein Fehler aufgetreten"), fault);
    case Kind::TooLarge:
        return tr("Die Datei wird zu groß für diesen Datenträger.");
    case Kind::NameTooLong:
        return tr("Der Name der Datei ist zu lang.");
    case Kind::ChangedMeanwhile:
        return tr("Ein anderes Programm hat die Datei währenddessen geändert.");
    case Kind::NoFormat:
        return tr("Die Endung des Namens gehört zu keinem Bildformat.");
    default:
        return {};
    }
}

QString FaultText::mediumReason(const FileFault &fault)
{
    const QString medium = mediumOf(fault);
    switch (fault.kind) {
    case Kind::NoSpace:
        return fault.missingBytes > 0
                   ? tr("Kein Speicherplatz auf %1: %2 fehlen").arg(medium, sizeText(fault.missingBytes))
                   : tr("Kein Speicherplatz auf %1").arg(medium);
    case Kind::NoQuota:
        return tr("Der zugeteilte Speicherplatz auf %1 ist aufgebraucht.").arg(medium);
    case Kind::ReadOnlyMedium:
        return tr("Der Datenträger %1 ist schreibgeschützt.").arg(medium);
    case Kind::MediumGone:
        return tr("Der Datenträger mit %1 ist nicht mehr erreichbar.").arg(folderOf(fault));
    default:
        return {};
    }
}

QString FaultText::nextStep(const FileFault &fault)
{
    switch (fault.kind) {
    case Kind::NotThere:
        return tr("Vielleicht wurde sie verschoben, umbenannt oder gelöscht.");
    case Kind::NoFolder:
    case Kind::MediumGone:
        return tr("Ist der Datenträger eingesteckt und das Netzlaufwerk verbunden?");
    case Kind::IsFolder:
    case Kind::NotRegular:
        return tr("Bitte eine andere Datei wählen.");
    case Kind::NameTooLong:
        return tr("Bitte einen kürzeren Namen wählen.");
    case Kind::NoFormat:
        return tr("Bitte einen Namen mit der Endung .png, .jpg, .bmp oder .tif wählen.");
    case Kind::OutOfMemory:
        return tr("Bitte andere Programme beenden und es noch einmal versuchen.");
    case Kind::ReadError:
        return tr("Bitte den Datenträger prüfen und es noch einmal versuchen.");
    case Kind::NotJson:
    case Kind::CutOff:
    case Kind::NoProject:
        return QFileInfo::exists(backupName(fault.path))
                   ? tr("Der Stand vor dem letzten Speichern liegt daneben in \"%1\": umbenennen und öffnen.")
                         .arg(QFileInfo(backupName(fault.path)).fileName())
                   : tr("Bitte eine Kopie der Datei öffnen, falls es eine gibt.");
    case Kind::None:
        return {};
    default:
        return tr("Bitte einen anderen Ort wählen.");
    }
}

QString FaultText::appendedTo(const QString &failure, const FileFault &fault)
{
    QStringList lines{failure};
    if (fault) {
        lines << QString() << reason(fault);
        if (!fault.keptCopy.isEmpty())
            lines << tr("Der vorige Inhalt ist gerettet in %1").arg(shown(fault.keptCopy));
        lines << nextStep(fault);
    }
    return lines.join(QLatin1Char('\n'));
}
