#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "model/model.h"
#include "view/home/tabhome.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/window/view.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace {

const QLatin1String kProjectSuffix(".vnt");

QString projectFilter()
{
    return Controller::tr("Ventaro Dateien (*.vnt)");
}

/// Shows the progress bar for its lifetime.
class ProgressScope
{
public:
    ProgressScope(QProgressBar *bar, const QString &text)
        : m_bar(bar)
    {
        m_bar->setFormat(text);
        m_bar->setValue(0);
        m_bar->show();
    }
    ~ProgressScope() { m_bar->hide(); }
    Q_DISABLE_COPY_MOVE(ProgressScope)

private:
    QProgressBar *m_bar;
};

} // namespace

// --- New, open, save -------------------------------------------------------------------------------------------

void Controller::onNewProject()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    d->view->commitInput();
    if (d->model->isProjectModified()) {
        const bool save = d->prompt([this] { return d->view->askToSave(); });
        if (save && !saveUnsavedChanges())
            return;
        if (!save)
            leaveDevice();
    }
    d->model->blockSignals(false);
    d->model->clear();
    describeBoxAgain();
    d->model->setProjectModifiedFlag(false);
    d->series.clear();
    d->view->reset();
    if (!d->model->isConnected())
        d->view->forgetLiveValues();
    showDeviceState();
}

/// True if the user's changes are in a file afterwards; if not, whatever was about to replace them must not happen.
bool Controller::saveUnsavedChanges()
{
    d->fileSaved = false;
    emit d->view->saveProject();
    return d->fileSaved;
}

void Controller::onOpenProject()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    d->view->commitInput();
    const QString fileName = d->prompt([this] { return d->view->askOpenFile(tr("Projekt öffnen"), projectFilter()); });
    if (fileName.isEmpty()) {
        qCDebug(lcController) << " filename is empty!";
        return;
    }
    replaceProject(fileName);
}

void Controller::onOpenProjectFile(const QString &fileName)
{
    qCDebug(lcController) << Q_FUNC_INFO << fileName;
    if (refuseWhileOccupied())
        return;
    d->view->commitInput();
    replaceProject(fileName);
}

void Controller::replaceProject(const QString &fileName)
{
    if (d->model->isProjectModified() && d->prompt([this] { return d->view->askToSave(); }) && !saveUnsavedChanges())
        return;
    openFile(fileName);
}

void Controller::openFile(const QString &fileName)
{
    const quint64 structure = d->model->structureRevision();
    bool opened = false;
    {
        const ProgressScope progress(d->progressBar, tr("Loading..."));
        const LineHold hold(d->holds, d->connector, d->resumeTimer);
        opened = d->model->open(fileName);
    }
    const auto edits = std::exchange(d->heldEdits, {});
    for (const auto &edit : edits) {
        if (!opened) // otherwise they were meant for the project that is gone
            applyEdit(edit);
    }
    if (d->model->structureRevision() != structure)
        d->series.clear();
    if (opened && !d->model->isConnected())
        d->view->forgetLiveValues();
    showDeviceState();
    d->view->tabHome()->refreshRecentProjects(); // the file may be gone
    if (opened)
        d->view->rememberProject(d->model->currentFile());
    else
        d->prompt([&] { d->view->showWarning(tr("Cannot open file %1 !.").arg(fileName), tr("Problem")); });
}

void Controller::onSaveProject()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->fileSaved = false;
    if (refuseWhileOccupied())
        return;
    d->view->commitInput();
    const QString fileName = d->model->currentFile();
    if (fileName.isEmpty())
        onSaveProjectAs();
    else
        d->fileSaved = saveTo(fileName);
}

void Controller::onSaveProjectAs()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    d->fileSaved = false;
    if (refuseWhileOccupied())
        return;
    d->view->commitInput();
    const QString fileName = askProjectFileToSave();
    if (!fileName.isEmpty())
        d->fileSaved = saveTo(fileName);
}

/// Empty: cancelled.
QString Controller::askProjectFileToSave()
{
    QString fileName = d->prompt([this] { return d->view->askSaveFile(tr("Projekt speichern"), projectFilter()); });
    if (fileName.isEmpty() || fileName.endsWith(kProjectSuffix, Qt::CaseInsensitive))
        return fileName;
    fileName += kProjectSuffix; // or the file dialog would not show it
    if (!QFileInfo::exists(fileName))
        return fileName;
    // The file dialog could only ask about the name as it was typed.
    const QString question = tr("Die Datei \"%1\" ist schon vorhanden. Überschreiben?").arg(fileName);
    const bool replace = d->prompt([&] { return d->view->askYesNo(tr("Projekt speichern"), question); });
    return replace ? fileName : QString();
}

bool Controller::saveTo(const QString &fileName)
{
    bool saved = false;
    {
        const ProgressScope progress(d->progressBar, tr("Saving..."));
        const LineHold hold(d->holds, d->connector, d->resumeTimer);
        saved = d->model->save(fileName);
    }
    for (const auto &edit : std::exchange(d->heldEdits, {}))
        applyEdit(edit);
    if (saved && !d->model->isProjectMetaSaved())
        d->prompt([this] {
            d->view->showWarning(tr("Das Projekt ist gespeichert, aber Grenzen, Schwellen, Bezeichnungen und "
                                    "Zeitstempel der Auswertung konnten nicht gespeichert werden!"),
                                 tr("Problem"));
        });
    if (saved) {
        d->view->rememberProject(d->model->currentFile());
        d->view->showStatus(tr("Projekt gespeichert: %1").arg(fileName));
    } else
        d->prompt([this] { d->view->showWarning(tr("Das Projekt konnte nicht gespeichert werden!"), tr("Problem")); });
    return saved;
}

/// The window shows what is the case after it was reset or another project came in.
void Controller::showDeviceState()
{
    d->view->setConnected(d->model->isConnected());
    if (d->recordingRunning)
        d->view->setRecordingRunning(true);
    matchBoxToProject();
}

// --- Quit ------------------------------------------------------------------------------------------------------

void Controller::onActionQuit()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    d->view->commitInput();
    if (!confirmQuit())
        return;
    d->connector.stopMeasurement();
    d->model->endRecording();
    d->view->reset();
    leaveDevice();
    d->view->writeSettings();
    QCoreApplication::quit();
}

bool Controller::confirmQuit()
{
    qCDebug(lcController).noquote().nospace() << Q_FUNC_INFO << " modelChanged=" << d->model->isProjectModified();
    if (!d->model->isProjectModified() && !d->prompt([this] { return d->view->askToQuit(); }))
        return false;
    // Samples that came in while that question was up are worth the other one.
    if (!d->model->isProjectModified())
        return true;
    switch (d->prompt([this] { return d->view->askToSaveAndQuit(); })) {
    case QMessageBox::Save:
        return saveUnsavedChanges() && (!d->model->isProjectModified() || confirmQuit());
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

// --- Edits from the tabs ---------------------------------------------------------------------------------------

/// An edit made while a file is being written takes effect afterwards, so that the file is of one piece.
void Controller::applyEdit(const std::function<void()> &edit)
{
    if (d->model->isBusy()) {
        d->heldEdits.push_back(edit);
        return;
    }
    d->model->blockSignals(false);
    markModified();
    edit();
}

void Controller::onTabProject_projectDataChanged()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    const ProjectData data = d->view->tabProject()->projectData();
    applyEdit([this, data] { d->model->setProjectData(data); });
}

void Controller::onTabProject_commentChanged()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    const QString comment = d->view->tabProject()->comment();
    applyEdit([this, comment] { d->model->setComment(comment); });
}

void Controller::onTabProject_onPhaseEditChanged(int phase, const QString &name)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    applyEdit([this, phase, name] { d->model->setPhaseName(phase, name); });
}

void Controller::onTabProject_clearDataClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied() || !d->prompt([this] { return d->view->askToClearData(); }))
        return;
    d->model->blockSignals(false);
    d->model->setFileList({}); // what was imported can be imported again
    d->model->clearData();
    d->series.clear();
    markModified();
}
