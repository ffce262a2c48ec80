#include "controller/logger/loggerimport.h"

#include "controller/logger/importsummary.h"
#include "controller/occupancy.h"
#include "controller/project/fileprogress.h"
#include "controller/recording/linehold.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "controller/sensornews.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <algorithm>

LoggerImport::LoggerImport(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits,
                           Recorder &recorder)
    : m_desk(desk)
    , m_progress(progress)
    , m_lines(lines)
    , m_edits(edits)
    , m_recorder(recorder)
{}

void LoggerImport::run(const QStringList &files)
{
    if (m_desk.occupancy.refuseWhileOccupied() || refuseWhileRecording())
        return;
    const QStringList wanted = withoutUnwantedRepeats(files);
    // The answer takes its time; a recording may have begun.
    if (wanted.isEmpty() || refuseWhileRecording())
        return;
    const ImportSummary summary = importAsOneStep(wanted);
    m_edits.applyKept(); // made while files were being read
    show(summary);
}

ImportSummary LoggerImport::importAsOneStep(const QStringList &files)
{
    const EditScope edit(&m_desk.model, [count = files.size()] {
        return count == 1 ? tr("Import einer Datei") : tr("Import von %1 Dateien").arg(count);
    });
    const SensorDescription before = m_desk.model.sensorDescription();
    ImportSummary summary = readFiles(files);
    if (summary.numUnreadable() < files.size())
        finish(before);
    return summary;
}

/// The newest measurement is the one being recorded, in all views; so it must stay the last.
bool LoggerImport::refuseWhileRecording()
{
    if (!m_recorder.isRunning())
        return false;
    m_desk.occupancy.ask([this] {
        m_desk.view.showMessage(tr("Während einer Aufzeichnung kann nichts importiert werden.\n"
                                   "Bitte beenden Sie zuerst die Aufzeichnung."),
                                tr("BlackBox"));
    });
    return true;
}

/// Files that the project has already are left out unless the user wants them again. None if the question is closed.
QStringList LoggerImport::withoutUnwantedRepeats(const QStringList &files)
{
    const QSet<QByteArray> imported = m_desk.model.importedFiles();
    QStringList fresh;
    std::copy_if(files.begin(), files.end(), std::back_inserter(fresh),
                 [&imported](const QString &file) { return !imported.contains(blackBoxFingerprint(file)); });
    const int repeats = files.size() - fresh.size();
    if (repeats == 0)
        return files;
    const QString question =
        repeats == 1 ? tr("Eine der Dateien ist schon in diesem Projekt.\nNoch einmal importieren?")
                     : tr("%1 der Dateien sind schon in diesem Projekt.\nNoch einmal importieren?").arg(repeats);
    const QString hint = fresh.isEmpty() ? QString()
                                         : tr("\"Nein\" importiert nur die neuen Dateien. Escape oder Schließen bricht "
                                              "den Import ab.");
    const QMessageBox::StandardButton answer = m_desk.occupancy.ask([&] {
        return m_desk.view.questions().ask(
            {tr("BlackBox"), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No, false, hint});
    });
    if (answer == QMessageBox::NoButton)
        return {};
    return answer == QMessageBox::Yes ? files : fresh;
}

ImportSummary LoggerImport::readFiles(const QStringList &files)
{
    ImportSummary summary;
    TabBlackBox *tab = m_desk.view.tabBlackBox();
    tab->setResult({});
    m_desk.model.blockSignals(false); // the plots follow file by file
    const ProgressScope progress(m_progress, tr("Importieren..."), files.size());
    const LineHold hold(m_lines);
    const TaskScope task(m_desk.occupancy, Task::Import);
    for (int done = 0; done < files.size(); ++done) {
        m_progress.setDone(done);
        tab->setTransferProgress(done, files.size());
        readFile(files.at(done), summary);
    }
    tab->setTransferProgress(0, 0);
    return summary;
}

void LoggerImport::readFile(const QString &file, ImportSummary &summary)
{
    const int before = m_desk.model.numChannels(0);
    if (m_desk.model.addBlackBoxFile(file))
        summary.addFile(m_desk.model.numChannels(0) - before, m_desk.model.blackBoxLosses());
    else
        summary.addUnreadable(file);
}

void LoggerImport::finish(const SensorDescription &before)
{
    // The answer to a single-value request belongs to no imported measurement, nor to one that is not the newest.
    m_recorder.forgetSeries();
    m_edits.markModified();
    m_desk.view.tabBlackBox()->setImportedFiles(m_desk.model.importedFiles());
    showNewLimits(before, m_desk.model.sensorDescription(), *m_desk.view.tabOszi());
}

void LoggerImport::show(const ImportSummary &summary)
{
    m_desk.view.tabBlackBox()->setResult(summary.text());
    m_desk.view.showStatus(summary.text());
    if (summary.numUnreadable() > 0)
        m_desk.occupancy.ask([&] { m_desk.view.showWarning(summary.failureText(), tr("Problem")); });
}
