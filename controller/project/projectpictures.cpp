#include "controller/project/projectpictures.h"

#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/recording/projectedits.h"
#include "controller/waitcursor.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "model/project/photo.h"
#include "model/project/projectimage.h"
#include "model/storage/atomicfile.h"
#include "view/common/faulttext.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QDir>
#include <QPixmap>

#include <array>

namespace {

using Deletion = void (View::*)();
constexpr std::array<Deletion, Model::kNumImages> kDeletions{&View::deleteImage0Confimed, &View::deleteImage1Confimed,
                                                             &View::deleteImage2Confimed, &View::deleteImage3Confimed,
                                                             &View::deleteImage4Confimed};
const QLatin1String kPictureSuffix(".png");

QString pictureFilter()
{
    QStringList patterns;
    const QStringList suffixes = photoSuffixes();
    for (const QString &suffix : suffixes)
        patterns += QLatin1String("*.") + suffix;
    return ProjectPictures::tr("Bilder (%1)").arg(patterns.join(QLatin1Char(' ')));
}

QString faultText(PhotoFault fault, const QString &file)
{
    const QString name = QDir::toNativeSeparators(file);
    switch (fault) {
    case PhotoFault::Unreadable:
        return ProjectPictures::tr("Die Datei \"%1\" konnte nicht gelesen werden!").arg(name);
    case PhotoFault::TooLarge:
        return ProjectPictures::tr("Das Bild \"%1\" ist zu groß: Es hat mehr als %2 Millionen Bildpunkte!")
            .arg(name, QString::number(kMostPhotoPixels / 1000000));
    default:
        return ProjectPictures::tr("Die Datei \"%1\" enthält kein Bild, das gelesen werden kann!").arg(name);
    }
}

/// The file is whole, or as it was.
FileFault writePicture(const QByteArray &png, const QString &fileName)
{
    return replaceFile(fileName, [&png](QIODevice &target) { return target.write(png) == png.size(); }).fault;
}

} // namespace

ProjectPictures::ProjectPictures(const Desk &desk, ProjectEdits &edits)
    : m_view(desk.view)
    , m_model(desk.model)
    , m_occupancy(desk.occupancy)
    , m_edits(edits)
{}

// --- Pictures come in ---

void ProjectPictures::choose(int image)
{
    qCDebug(lcController) << Q_FUNC_INFO << image;
    if (m_occupancy.refuseWhileOccupied())
        return;
    const QString file = m_occupancy.ask([this] {
        return m_view.questions().openFile(tr("Bild auswählen"), pictureFilter(), {Questions::kPictureFolder});
    });
    if (!file.isEmpty())
        (void)takeFile(image, file); // whoever chose it has been told of a failure
}

void ProjectPictures::takeFiles(int image, const QStringList &files)
{
    qCDebug(lcController) << Q_FUNC_INFO << image << files;
    if (m_occupancy.refuseWhileOccupied() || files.isEmpty() || !mayReplace(image))
        return;
    if (!takeFile(image, files.constFirst()))
        return;
    const int taken = takeIntoFreeTiles(files, 1);
    if (taken > 0 && taken < files.size())
        m_view.showStatus(
            tr("Nur %1 von %2 Bildern übernommen, mehr Plätze sind nicht frei.").arg(taken).arg(files.size()));
}

/// How many files are taken afterwards; 0 if one of them failed, of which the user has been told.
int ProjectPictures::takeIntoFreeTiles(const QStringList &files, int taken)
{
    for (int image = 0; image < Model::kNumImages && taken < files.size(); ++image) {
        if (m_model.images().state(image) != PictureState::None)
            continue;
        if (!takeFile(image, files.at(taken)))
            return 0;
        ++taken;
    }
    return taken;
}

void ProjectPictures::take(int image, const QImage &picture)
{
    qCDebug(lcController) << Q_FUNC_INFO << image << picture.size();
    if (m_occupancy.refuseWhileOccupied() || picture.isNull() || !mayReplace(image))
        return;
    (void)set(image, QPixmap::fromImage(fittedPhoto(picture))); // whoever gave it has been told of a failure
}

/// Whoever chooses a file in a dialog has decided; what is dropped or pasted may have missed its tile.
bool ProjectPictures::mayReplace(int image)
{
    if (m_model.images().state(image) == PictureState::None)
        return true;
    const QString question = tr("Bild %1 wird durch ein anderes ersetzt.\nFortfahren?").arg(image + 1);
    return m_occupancy.ask([&] { return m_view.questions().yesNoDestructive(tr("Bild ersetzen"), question); });
}

bool ProjectPictures::takeFile(int image, const QString &file)
{
    Photo photo;
    {
        const WaitCursor cursor; // a large photo takes a moment
        photo = readPhoto(file);
    }
    if (photo.fault == PhotoFault::None)
        return set(image, QPixmap::fromImage(photo.image));
    m_occupancy.ask([&] { m_view.showWarning(faultText(photo.fault, file), tr("Problem")); });
    return false;
}

/// False if there is no room for it, of which the user has been told.
bool ProjectPictures::set(int image, const QPixmap &picture)
{
    const qint64 others = m_model.images().pixelsBeside(image);
    if (others + qint64(picture.width()) * picture.height() > ImageStore::kMostPixels) {
        const QString text = tr("Für Bild %1 ist kein Platz mehr: Alle Bilder eines Projekts zusammen dürfen höchstens "
                                "%2 Millionen Bildpunkte haben, die anderen haben schon %3 Millionen.\n"
                                "Bitte zuerst ein großes Bild löschen oder durch ein kleineres ersetzen.");
        const QString most = QString::number(ImageStore::kMostPixels / 1000000);
        const QString used = QString::number(others / 1000000);
        m_occupancy.ask([&] { m_view.showWarning(text.arg(QString::number(image + 1), most, used), tr("Problem")); });
        return false;
    }
    m_edits.apply([this, image, picture] {
        const EditScope edit(&m_model, [image, replaces = m_model.images().state(image) != PictureState::None] {
            return (replaces ? tr("Ersetzen von Bild %1") : tr("Einfügen von Bild %1")).arg(image + 1);
        });
        m_model.setImage(image, picture);
    });
    return true;
}

// --- Pictures go ---

void ProjectPictures::remove(int image)
{
    qCDebug(lcController) << Q_FUNC_INFO << image;
    if (m_occupancy.refuseWhileOccupied() || m_model.images().state(image) == PictureState::None)
        return;
    const QString question = tr("Bild %1 wird aus dem Projekt gelöscht.\nFortfahren?").arg(image + 1);
    if (!m_occupancy.ask([&] { return m_view.questions().yesNoDestructive(tr("Bild löschen"), question); }))
        return;
    m_model.blockSignals(false);
    const EditScope edit(&m_model, [image] { return tr("Löschen von Bild %1").arg(image + 1); });
    (m_view.*kDeletions.at(static_cast<std::size_t>(image)))();
}

void ProjectPictures::save(int image)
{
    qCDebug(lcController) << Q_FUNC_INFO << image;
    const PictureState state = m_model.images().state(image);
    if (m_occupancy.refuseWhileOccupied() || state == PictureState::None || state == PictureState::Undecodable)
        return;
    const QString file = askFileToSave();
    if (file.isEmpty())
        return;
    const FileFault fault = writePicture(bytesOf(image), file);
    if (!fault) {
        m_view.showStatus(tr("Bild gespeichert: %1").arg(file));
        return;
    }
    const QString text = FaultText::appendedTo(tr("Das Bild konnte nicht gespeichert werden!"), fault);
    m_occupancy.ask([&] { m_view.showWarning(text, tr("Problem")); });
}

/// A picture that is shown smaller, or not at all, as it is in the project.
QByteArray ProjectPictures::bytesOf(int image) const
{
    const WaitCursor cursor;
    const QByteArray original = m_model.images().original(image);
    return original.isEmpty() ? toPng(m_model.image(image)) : original;
}

/// Empty: cancelled.
QString ProjectPictures::askFileToSave()
{
    return m_occupancy.ask([this] {
        return m_view.questions().saveFileWithSuffix(tr("Bild speichern"), tr("PNG-Bild (*.png)"), kPictureSuffix,
                                                     Qt::CaseInsensitive, {}, {Questions::kPictureFolder});
    });
}
