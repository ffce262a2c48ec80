#include "view/window/exports.h"

#include "model/model.h"
#include "model/storage/atomicfile.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/faulttext.h"
#include "view/common/logging.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/terminal/tabterminal.h"
#include "view/terminal/terminalfile.h"
#include "view/window/mainwindow.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPixmap>

namespace {

constexpr int kFailureTime = 30000; // ms; longer than that of other messages, as there is more to read

/// In the format that the ending of the name tells.
FileFault writePicture(const QPixmap &picture, const QString &fileName)
{
    const QByteArray format = QFileInfo(fileName).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format)) {
        FileFault fault;
        fault.kind = FileFault::Kind::NoFormat;
        fault.path = fileName;
        return fault;
    }
    QBuffer encoded; // some formats want to go back in what they write
    const bool isEncoded = encoded.open(QIODevice::WriteOnly) && picture.save(&encoded, format.constData());
    const auto write = [&](QIODevice &target) { return isEncoded && target.write(encoded.data()) == encoded.size(); };
    return replaceFile(fileName, write).fault;
}

} // namespace

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

void Exports::showSaved(const QString &fileName) const
{
    m_window->showStatus(tr("Gespeichert: %1").arg(QDir::toNativeSeparators(fileName)));
}

/// In one line, as there is no dialog.
void Exports::showFailed(const QString &what, const FileFault &fault) const
{
    const QStringList texts{what, FaultText::reason(fault), FaultText::nextStep(fault)};
    m_window->showStatus(texts.join(QLatin1Char(' ')).simplified(), kFailureTime);
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
    const auto write = [this](QIODevice &target) {
        return writeTerminal(target, m_pages.terminal->plainText(), QDateTime::currentDateTime());
    };
    ReplaceOptions options;
    options.isText = true;
    const Replacement done = replaceFile(
        fileName, write, [] {}, options);
    if (done) {
        showSaved(fileName);
        return;
    }
    qCDebug(lcView) << "Error saving terminal content!";
    showFailed(tr("Der Inhalt des Terminals konnte nicht gespeichert werden!"), done.fault);
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
    const FileFault fault = writePicture(picture, fileName);
    if (!fault) {
        showSaved(fileName);
        return;
    }
    qCDebug(lcView) << "Error saving oscilloscope content!";
    showFailed(tr("Das Oszilloskop konnte nicht als Bild gespeichert werden!"), fault);
}

void Exports::saveCsv() const
{
    if (refuseWhileBusy())
        return;
    const QString fileName =
        m_window->askSaveFileWithSuffix(tr("Save data logger file"), tr("CSV - Comma separated values (*.csv)"),
                                        QStringLiteral(".csv"), Qt::CaseSensitive, tr("Datei überschreiben"));
    if (fileName.isEmpty())
        return;
    if (m_model->saveCsv(fileName)) {
        showSaved(fileName);
        return;
    }
    qCDebug(lcView) << "Error saving CSV!";
    showFailed(tr("Die CSV-Datei konnte nicht gespeichert werden!"), m_model->lastFileFault());
}
