#include "view/window/exports.h"

#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/terminal/tabterminal.h"
#include "view/terminal/terminalfile.h"
#include "view/window/mainwindow.h"

#include <QDateTime>
#include <QFile>

Exports::Exports(MainWindow *window, Model *model, const Pages &pages)
    : m_window(window)
    , m_model(model)
    , m_pages(pages)
{
    connect(window, &MainWindow::saveTerminal, this, &Exports::saveTerminal);
    connect(window, &MainWindow::saveOszi, this, &Exports::saveOszi);
    connect(window, &MainWindow::saveCSV, this, &Exports::saveCsv);
}

bool Exports::refuseWhileBusy() const
{
    if (!m_model->isBusy())
        return false;
    m_window->showStatus(tr("Bitte warten, bis der laufende Vorgang beendet ist."));
    return true;
}

void Exports::saveTerminal() const
{
    if (refuseWhileBusy())
        return;
    const QString fileName =
        m_window->askSaveFileWithSuffix(tr("Save terminal"), tr("ASCII File (*.txt)"), QStringLiteral(".txt"),
                                        Qt::CaseSensitive, tr("Datei überschreiben"));
    if (fileName.isEmpty())
        return;
    QFile file(fileName);
    const bool saved = file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)
                       && writeTerminal(file, m_pages.terminal->plainText(), QDateTime::currentDateTime())
                       && file.flush(); // a full disk shows only now
    if (saved)
        return;
    qCDebug(lcView) << "Error saving terminal content!";
    m_window->showStatus(tr("Der Inhalt des Terminals konnte nicht gespeichert werden!"));
}

void Exports::saveOszi() const
{
    if (refuseWhileBusy())
        return;
    // Without a suffix there is no format: such a name is refused, not completed.
    const QString fileName =
        m_window->askSaveFile(tr("Save oscilloscope"), tr("BMP (*.bmp);;JPG (*.jpg);;PNG (*.png);;TIFF (*.tif)"));
    if (fileName.isEmpty())
        return;
    OsziWidget *row = m_pages.oszi->row(0);
    const QPixmap picture = row ? row->grab() : QPixmap();
    if (picture.isNull())
        qCDebug(lcView) << "pixmap is NULL!";
    if (picture.save(fileName))
        return;
    qCDebug(lcView) << "Error saving oscilloscope content!";
    m_window->showStatus(tr("Das Oszilloskop konnte nicht als Bild gespeichert werden!"));
}

void Exports::saveCsv() const
{
    if (refuseWhileBusy())
        return;
    const QString fileName =
        m_window->askSaveFileWithSuffix(tr("Save data logger file"), tr("CSV - Comma separated values (*.csv)"),
                                        QStringLiteral(".csv"), Qt::CaseSensitive, tr("Datei überschreiben"));
    if (fileName.isEmpty() || m_model->saveCsv(fileName))
        return;
    qCDebug(lcView) << "Error saving CSV!";
    m_window->showStatus(tr("Die CSV-Datei konnte nicht gespeichert werden!"));
}
