#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/terminal/tabterminal.h"
#include "view/window/exportfiles.h"
#include "view/window/viewprivate.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

bool View::Private::refuseWhileBusy()
{
    if (!model->isBusy())
        return false;
    q->showStatus(tr("Bitte warten, bis der laufende Vorgang beendet ist."));
    return true;
}

QString View::Private::askExportFile(const QString &title, const QString &filter, const QString &suffix)
{
    const QString chosen = q->askSaveFile(title, filter);
    if (chosen.isEmpty())
        return chosen;
    const QString file = withSuffix(chosen, suffix);
    // The dialog asked about the name chosen, not about the one with the suffix.
    if (file != chosen && QFile::exists(file)
        && !q->askYesNo(tr("Datei überschreiben"),
                        tr("Die Datei \"%1\" ist schon vorhanden. Überschreiben?").arg(QDir::toNativeSeparators(file))))
        return {};
    return file;
}

void View::Private::exportTerminal()
{
    if (refuseWhileBusy())
        return;
    const QString fileName = askExportFile(tr("Save terminal"), tr("ASCII File (*.txt)"), QStringLiteral(".txt"));
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    const bool saved = file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)
                       && writeTerminal(file, tabTerminal->plainText(), QDateTime::currentDateTime()) && file.flush();
    if (saved)
        return;
    qCDebug(lcView) << "Error saving terminal content!";
    q->showStatus(tr("Der Inhalt des Terminals konnte nicht gespeichert werden!"));
}

void View::Private::exportOszi()
{
    if (refuseWhileBusy())
        return;
    const QString fileName =
        q->askSaveFile(tr("Save oscilloscope"), tr("BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)"));
    if (fileName.isEmpty())
        return;
    OsziWidget *row = tabOszi->row(0);
    const QPixmap picture = row ? row->grab() : QPixmap();
    if (picture.isNull())
        qCDebug(lcView) << "pixmap is NULL!";
    if (picture.save(fileName))
        return;
    qCDebug(lcView) << "Error saving oscilloscope content!";
    q->showStatus(tr("Das Oszilloskop konnte nicht als Bild gespeichert werden!"));
}

void View::Private::exportCsv()
{
    if (refuseWhileBusy())
        return;
    const QString fileName =
        askExportFile(tr("Save data logger file"), tr("CSV - Comma separated values (*.csv)"), QStringLiteral(".csv"));
    if (fileName.isEmpty() || model->saveCsv(fileName))
        return;
    qCDebug(lcView) << "Error saving CSV!";
    q->showStatus(tr("Die CSV-Datei konnte nicht gespeichert werden!"));
}
