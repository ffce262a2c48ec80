#include "controller/project/opennotice.h"

#include "controller/occupancy.h"
#include "model/model.h"
#include "model/project/metafile.h"
#include "model/project/projectdocument.h"
#include "view/window/view.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

namespace {

/// The names, and how many more there are.
QString listed(const NameList &names)
{
    QStringList quoted;
    for (const QString &name : names.names)
        quoted += QLatin1Char('"') + name.simplified() + QLatin1Char('"');
    const QString list = quoted.join(QStringLiteral(", "));
    const int more = names.count - names.names.size();
    return more == 0 ? list : OpenNotice::tr("%1 und %2 weitere").arg(list, QString::number(more));
}

QString withoutFolder(const QString &file)
{
    return QFileInfo(file).fileName();
}

} // namespace

OpenNotice::OpenNotice(const Desk &desk)
    : m_view(desk.view)
    , m_model(desk.model)
    , m_occupancy(desk.occupancy)
{
    if (!m_model.currentFile().isEmpty())
        QTimer::singleShot(0, this, &OpenNotice::show);
}

void OpenNotice::show()
{
    const OpenLosses &losses = m_model.openLosses();
    if (losses.meta == MetaState::Missing && m_model.numChannels(0) > 0)
        m_view.showStatus(
            tr("Ohne die Datei \"%1\" fehlen Zeitstempel, Bezeichnungen, Einheiten, Grenzen und Schwellen.")
                .arg(withoutFolder(losses.metaFile)));
    if (!losses.isAny())
        return;
    const QString said = text();
    const QString title = tr("Hinweise zum Projekt");
    m_occupancy.ask([&] { isHarmless() ? m_view.showMessage(said, title) : m_view.showWarning(said, title); });
}

/// True if saving loses nothing and everything is shown.
bool OpenNotice::isHarmless() const
{
    OpenLosses others = m_model.openLosses();
    others.unknown = {};
    return !others.isAny();
}

QString OpenNotice::text() const
{
    const OpenLosses &losses = m_model.openLosses();
    QStringList paragraphs{origin(), keys(), pictures(), meta()};
    if (!losses.isForeign && (!losses.newerVersion.isEmpty() || losses.lost.count > 0))
        paragraphs += tr("Damit nichts verloren geht, kann das Projekt unter einem anderen Namen gespeichert werden.");
    paragraphs.removeAll(QString());
    return paragraphs.join(QStringLiteral("\n\n"));
}

QString OpenNotice::origin() const
{
    const OpenLosses &losses = m_model.openLosses();
    if (losses.isForeign)
        return tr("Die Datei \"%1\" sieht nicht wie ein Projekt aus: Sie enthält keine einzige Angabe eines Projekts.\n"
                  "Sie wird beim Speichern nicht ersetzt; das Programm fragt dann nach einem anderen Namen.")
            .arg(QDir::toNativeSeparators(m_model.currentFile()));
    if (losses.newerVersion.isEmpty())
        return {};
    return tr("Das Projekt wurde mit einer neueren Version des Programms gespeichert (Dateiversion %1).\n"
              "Beim Speichern bekommt es die Dateiversion %2.")
        .arg(losses.newerVersion.left(NameList::kLongestName), QString::number(ProjectDocument::kFileVersion));
}

QString OpenNotice::keys() const
{
    const OpenLosses &losses = m_model.openLosses();
    QStringList lines;
    if (losses.unknown.count > 0)
        lines += tr("Unbekannte Angaben, die erhalten bleiben und wieder gespeichert werden: %1.")
                     .arg(listed(losses.unknown));
    if (losses.lost.count > 0)
        lines += tr("Angaben, die nicht gelesen werden konnten und beim Speichern verloren gehen: %1.")
                     .arg(listed(losses.lost));
    return lines.join(QLatin1Char('\n'));
}

QString OpenNotice::pictures() const
{
    const QString undecodable = pictureList(PictureState::Undecodable);
    const QString tooLarge = pictureList(PictureState::TooLarge);
    QStringList lines;
    if (!undecodable.isEmpty())
        lines += tr("Nicht lesbar: %1.").arg(undecodable);
    if (!tooLarge.isEmpty())
        lines += tr("Zu groß zum Anzeigen, da alle Bilder zusammen höchstens %1 Millionen Bildpunkte haben dürfen: %2.")
                     .arg(QString::number(ImageStore::kMostPixels / 1000000), tooLarge);
    if (!lines.isEmpty())
        lines += tr("Was in der Datei steht, bleibt erhalten, bis dort ein anderes Bild gewählt wird.");
    return lines.join(QLatin1Char('\n'));
}

QString OpenNotice::pictureList(PictureState state) const
{
    const OpenLosses &losses = m_model.openLosses();
    QStringList names;
    for (int image = 0; image < Model::kNumImages; ++image) {
        if (losses.pictures.at(static_cast<std::size_t>(image)) != state)
            continue;
        const QSize size = m_model.images().size(image);
        const QString name = tr("Bild %1").arg(image + 1);
        names += size.isEmpty() ? name : QStringLiteral("%1 (%2 × %3)").arg(name).arg(size.width()).arg(size.height());
    }
    return names.join(QStringLiteral(", "));
}

QString OpenNotice::meta() const
{
    const OpenLosses &losses = m_model.openLosses();
    if (losses.meta != MetaState::Damaged && losses.meta != MetaState::Newer)
        return {};
    const QString fault = losses.meta == MetaState::Newer
                              ? tr("Die Datei \"%1\" neben dem Projekt ist von einer neueren Version des Programms.")
                              : tr("Die Datei \"%1\" neben dem Projekt ist beschädigt oder nicht lesbar.");
    const QString rest = tr("Es fehlen Zeitstempel, Bezeichnungen, Einheiten, Grenzen und Schwellen.\n"
                            "Beim Speichern wird sie nicht ersetzt, sondern als \"%1\" aufgehoben.");
    return fault.arg(withoutFolder(losses.metaFile)) + QLatin1Char('\n')
           + rest.arg(withoutFolder(badMetaName(losses.metaFile)));
}
