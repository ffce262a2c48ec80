#include "view/window/exports.h"

#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/terminal/tabterminal.h"
#include "view/window/exportfiles.h"
#include "view/window/view.h"

#include <QDateTime>
#include <QFile>

Exports::Exports(View *view, Model *model)
    : m_view(view)
    , m_model(model)
{
    connect(view, &View::saveTerminal, this, &Exports::saveTerminal);
    connect(view, &View::saveOszi, this, &Exports::saveOszi);
    connect(view, &View::saveCSV, this, &Exports::saveCsv);
}

bool Exports::refuseWhileBusy() const
{
    if (!m_model->isBusy())
        return false;
    m_view->showStatus(tr("Bitte warten, bis der laufende Vorgang beendet ist."));
    return true;
}

void Exports::saveTerminal() const
{
    if (refuseWhileBusy())
        return;
    const QString fileName =
        m_view->askSaveFileWithSuffix(tr("Save terminal"), tr("ASCII File (*.txt)"), QStringLiteral(".txt"),
                                      Qt::CaseSensitive, tr("Datei überschreiben"));
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    const bool saved = file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)
                       && writeTerminal(file, m_view->tabTerminal()->plainText(), QDateTime::currentDateTime())
                       && file.flush();
    if (saved)
        return;
    qCDebug(lcView) << "Error saving terminal content!";
    m_view->showStatus(tr("Der Inhalt des Terminals konnte nicht gespeichert werden!"));
}

void Exports::saveOszi() const
{
    if (refuseWhileBusy())
        return;
    // Without a suffix there is no format: such a name is refused, not completed.
    const QString fileName =
        m_view->askSaveFile(tr("Save oscilloscope"), tr("BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)"));
    if (fileName.isEmpty())
        return;
    OsziWidget *row = m_view->tabOszi()->row(0);
    const QPixmap picture = row ? row->grab() : QPixmap();
    if (picture.isNull())
        qCDebug(lcView) << "pixmap is NULL!";
    if (picture.save(fileName))
        return;
    qCDebug(lcView) << "Error saving oscilloscope content!";
    m_view->showStatus(tr("Das Oszilloskop konnte nicht als Bild gespeichert werden!"));
}

void Exports::saveCsv() const
{
    if (refuseWhileBusy())
        return;
    const QString fileName =
        m_view->askSaveFileWithSuffix(tr("Save data logger file"), tr("CSV - Comma separated values (*.csv)"),
                                      QStringLiteral(".csv"), Qt::CaseSensitive, tr("Datei überschreiben"));
    if (fileName.isEmpty() || m_model->saveCsv(fileName))
        return;
    qCDebug(lcView) << "Error saving CSV!";
    m_view->showStatus(tr("Die CSV-Datei konnte nicht gespeichert werden!"));
}
