#include "controller/logger/loggerimport.h"

#include "controller/logger/importorigins.h"
#include "controller/logger/importpreview.h"
#include "controller/logger/importsummary.h"
#include "controller/logger/transferscope.h"
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

LoggerImport::LoggerImport(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits,
                           Recorder &recorder, const BoxFolders &folders, const LocalFolder &local)
    : m_desk(desk)
    , m_progress(progress)
    , m_lines(lines)
    , m_edits(edits)
    , m_recorder(recorder)
    , m_folders(folders)
    , m_local(local)
{}

void LoggerImport::run(const QStringList &files)
{
    if (m_desk.occupancy.refuseWhileOccupied() || refuseWhileRecording())
        return;
    const ImportOrigins origins = examine(files);
    const QStringList wanted = withoutUnwantedRepeats(files, origins);
    const Sensors sensors = wanted.isEmpty() ? Sensors::Cancelled : askAboutSensors(wanted);
    // The answers take their time; a recording may have begun.
    if (sensors == Sensors::Cancelled || refuseWhileRecording())
        return;
    const ImportSummary summary = importAsOneStep(wanted, origins, sensors);
    m_edits.applyKept(); // made while files were being read
    show(summary);
}

/// Reads all files once, as a whole, which is what tells them apart.
ImportOrigins LoggerImport::examine(const QStringList &files)
{
    const TaskScope task(m_desk.occupancy, Task::Import);
    ReadingTurns turns;
    return ImportOrigins(m_folders, m_local, files, turns.counter());
}

ImportSummary LoggerImport::importAsOneStep(const QStringList &files, const ImportOrigins &origins, Sensors sensors)
{
    const EditScope edit(&m_desk.model, [count = files.size()] {
        return count == 1 ? tr("Import einer Datei") : tr("Import von %1 Dateien").arg(count);
    });
    const SensorDescription before = m_desk.model.sensorDescription();
    ImportSummary summary = readFiles(files, origins);
    if (summary.numUnreadable() < files.size())
        finish(before, sensors);
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
QStringList LoggerImport::withoutUnwantedRepeats(const QStringList &files, const ImportOrigins &origins)
{
    const QStringList fresh = origins.filesWithout(m_desk.model.importedFiles());
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

/// Asked only if the project knows something that the files say differently.
LoggerImport::Sensors LoggerImport::askAboutSensors(const QStringList &files)
{
    ImportPreview preview(m_desk.model.sensorDescription());
    {
        const TaskScope task(m_desk.occupancy, Task::Import);
        ReadingTurns turns;
        for (const QString &file : files) {
            preview.addFile(file);
            turns.look();
        }
    }
    const QStringList changes = preview.changes();
    if (changes.isEmpty())
        return Sensors::OfFiles;
    Choice choice;
    choice.title = tr("BlackBox");
    choice.text = tr("Die Dateien beschreiben die Sensoren anders als das Projekt:") + QLatin1String("\n\n")
                  + changes.join(QLatin1Char('\n'));
    if (preview.isAmbiguous())
        choice.text += QLatin1String("\n\n") + tr("Die Dateien stimmen darin nicht überein; die letzte gilt.");
    choice.hint = tr("Die Messwerte werden in beiden Fällen importiert.");
    choice.answers = QStringList{tr("Angaben der Dateien"), tr("Angaben des Projekts")};
    choice.safest = 1;
    const int answer = m_desk.occupancy.ask([&] { return m_desk.view.questions().choose(choice); });
    if (answer == Choice::kClosed)
        return Sensors::Cancelled;
    return answer == 0 ? Sensors::OfFiles : Sensors::OfProject;
}

ImportSummary LoggerImport::readFiles(const QStringList &files, const ImportOrigins &origins)
{
    ImportSummary summary;
    TabBlackBox *tab = m_desk.view.tabBlackBox();
    tab->setResult({});
    m_desk.model.blockSignals(false); // the plots follow file by file
    const ProgressScope progress(m_progress, tr("Importieren..."), files.size());
    const LineHold hold(m_lines);
    const TaskScope task(m_desk.occupancy, Task::Import);
    QHash<int, ShotOrigin> imported; // by shot
    for (int done = 0; done < files.size(); ++done) {
        m_progress.setDone(done);
        tab->setTransferProgress(done, files.size());
        const int shot = m_desk.model.numChannels(0);
        readFile(files.at(done), summary);
        if (m_desk.model.numChannels(0) > shot)
            imported.insert(shot, origins.originOf(files.at(done)));
    }
    noteOrigins(imported);
    tab->setTransferProgress(0, 0);
    return summary;
}

/// All at once, as each change of these settings is announced.
void LoggerImport::noteOrigins(const QHash<int, ShotOrigin> &origins)
{
    if (origins.isEmpty())
        return;
    ProjectMeta meta = m_desk.model.projectMeta();
    for (auto shot = origins.begin(); shot != origins.end(); ++shot)
        meta.setOrigin(shot.key(), shot.value());
    m_desk.model.setProjectMeta(meta);
}

void LoggerImport::readFile(const QString &file, ImportSummary &summary)
{
    const int before = m_desk.model.numChannels(0);
    if (m_desk.model.addBlackBoxFile(file))
        summary.addFile(m_desk.model.numChannels(0) - before, m_desk.model.blackBoxLosses());
    else
        summary.addUnreadable(file);
}

void LoggerImport::finish(const SensorDescription &before, Sensors sensors)
{
    if (sensors == Sensors::OfProject) {
        m_desk.model.setSensorDescription(before);
        m_desk.model.emitProjectChanged();
    }
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
