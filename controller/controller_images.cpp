#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "model/model.h"
#include "model/project/photo.h"
#include "model/project/projectimage.h"
#include "view/window/view.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>

#include <array>

namespace {

using Deletion = void (View::*)();
constexpr std::array<Deletion, Model::kNumImages> kDeletions{&View::deleteImage0Confimed, &View::deleteImage1Confimed,
                                                             &View::deleteImage2Confimed, &View::deleteImage3Confimed,
                                                             &View::deleteImage4Confimed};

QString pictureFilter()
{
    QStringList patterns;
    const QStringList suffixes = photoSuffixes();
    for (const QString &suffix : suffixes)
        patterns += QLatin1String("*.") + suffix;
    return Controller::tr("Bilder (%1)").arg(patterns.join(QLatin1Char(' ')));
}

QString faultText(PhotoFault fault, const QString &file)
{
    const QString name = QDir::toNativeSeparators(file);
    switch (fault) {
    case PhotoFault::Unreadable:
        return Controller::tr("Die Datei \"%1\" konnte nicht gelesen werden!").arg(name);
    case PhotoFault::TooLarge:
        return Controller::tr("Das Bild \"%1\" ist zu groß: Es hat mehr als %2 Millionen Bildpunkte!")
            .arg(name, QString::number(kMostPhotoPixels / 1000000));
    default:
        return Controller::tr("Die Datei \"%1\" enthält kein Bild, das gelesen werden kann!").arg(name);
    }
}

/// The pointer shows for its lifetime that the window does not answer: a large photo takes a moment.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};

const QLatin1String kPictureSuffix(".png");

/// The file is whole, or as it was.
bool writePicture(const QPixmap &picture, const QString &fileName)
{
    const WaitCursor cursor;
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(toPng(picture)) > 0 && file.commit();
}

} // namespace

void Controller::onTabProject_imageButtonClicked(int image)
{
    qCDebug(lcController) << Q_FUNC_INFO << image;
    if (refuseWhileOccupied())
        return;
    const QString file = d->prompt([this] { return d->view->askOpenFile(tr("Bild auswählen"), pictureFilter()); });
    if (!file.isEmpty())
        (void)takeImageFile(image, file); // whoever chose it has been told of a failure
}

/// The first file is for the tile that it was given to, the others are for those that are free.
void Controller::onTabProject_imageFilesGiven(int image, const QStringList &files)
{
    qCDebug(lcController) << Q_FUNC_INFO << image << files;
    if (refuseWhileOccupied() || files.isEmpty() || !mayReplaceImage(image))
        return;
    int taken = takeImageFile(image, files.constFirst()) ? 1 : 0;
    for (int other = 0; other < Model::kNumImages && taken > 0 && taken < files.size(); ++other) {
        if (!d->model->image(other).isNull())
            continue;
        if (!takeImageFile(other, files.at(taken)))
            return;
        ++taken;
    }
    if (taken > 0 && taken < files.size())
        d->view->showStatus(
            tr("Nur %1 von %2 Bildern übernommen, mehr Plätze sind nicht frei.").arg(taken).arg(files.size()));
}

void Controller::onTabProject_imageGiven(int image, const QImage &picture)
{
    qCDebug(lcController) << Q_FUNC_INFO << image << picture.size();
    if (refuseWhileOccupied() || picture.isNull() || !mayReplaceImage(image))
        return;
    setImage(image, QPixmap::fromImage(fittedPhoto(picture)));
}

void Controller::onTabProject_imageDeleteClicked(int image)
{
    qCDebug(lcController) << Q_FUNC_INFO << image;
    if (refuseWhileOccupied() || d->model->image(image).isNull())
        return;
    const QString question = tr("Bild %1 wird aus dem Projekt gelöscht.\nFortfahren?").arg(image + 1);
    if (!d->prompt([&] { return d->view->askYesNo(tr("Bild löschen"), question); }))
        return;
    d->model->blockSignals(false);
    (d->view->*kDeletions.at(static_cast<std::size_t>(image)))();
}

/// Empty: cancelled.
QString Controller::askPictureFileToSave()
{
    const QString title = tr("Bild speichern");
    QString file = d->prompt([&] { return d->view->askSaveFile(title, tr("PNG-Bild (*.png)")); });
    if (file.isEmpty() || file.endsWith(kPictureSuffix, Qt::CaseInsensitive))
        return file;
    file += kPictureSuffix;
    const QString question = tr("Die Datei \"%1\" ist schon vorhanden. Überschreiben?").arg(file);
    const bool mayWrite = !QFileInfo::exists(file) || d->prompt([&] { return d->view->askYesNo(title, question); });
    return mayWrite ? file : QString();
}

void Controller::onTabProject_imageSaveClicked(int image)
{
    qCDebug(lcController) << Q_FUNC_INFO << image;
    const QPixmap picture = d->model->image(image);
    if (refuseWhileOccupied() || picture.isNull())
        return;
    const QString file = askPictureFileToSave();
    if (file.isEmpty())
        return;
    if (writePicture(picture, file))
        d->view->showStatus(tr("Bild gespeichert: %1").arg(file));
    else
        d->prompt([this] { d->view->showWarning(tr("Das Bild konnte nicht gespeichert werden!"), tr("Problem")); });
}

/// Whoever chooses a file in a dialog has decided; what is dropped or pasted may have missed its tile.
bool Controller::mayReplaceImage(int image)
{
    if (d->model->image(image).isNull())
        return true;
    const QString question = tr("Bild %1 wird durch ein anderes ersetzt.\nFortfahren?").arg(image + 1);
    return d->prompt([&] { return d->view->askYesNo(tr("Bild ersetzen"), question); });
}

bool Controller::takeImageFile(int image, const QString &file)
{
    Photo photo;
    {
        const WaitCursor cursor;
        photo = readPhoto(file);
    }
    if (photo.fault == PhotoFault::None)
        setImage(image, QPixmap::fromImage(photo.image));
    else
        d->prompt([&] { d->view->showWarning(faultText(photo.fault, file), tr("Problem")); });
    return photo.fault == PhotoFault::None;
}

void Controller::setImage(int image, const QPixmap &picture)
{
    Model *model = d->model;
    applyEdit([model, image, picture] { model->setImage(image, picture); });
}
