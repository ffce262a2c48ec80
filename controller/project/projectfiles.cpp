#include "controller/project/projectfiles.h"

#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/project/fileprogress.h"
#include "controller/project/filequestions.h"
#include "controller/project/projectlock.h"
#include "controller/project/projectsaving.h"
#include "controller/recording/linehold.h"
#include "controller/recording/projectedits.h"
#include "model/model.h"
#include "view/home/tabhome.h"
#include "view/window/view.h"

#include <QCoreApplication>
#include <QFileInfo>

ProjectFiles::ProjectFiles(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits,
                           ProjectSaving &saving, ProjectLock &lock, const FileQuestions &questions)
    : m_view(desk.view)
    , m_model(desk.model)
    , m_occupancy(desk.occupancy)
    , m_progress(progress)
    , m_lines(lines)
    , m_edits(edits)
    , m_saving(saving)
    , m_lock(lock)
    , m_questions(questions)
{
    if (!m_model.currentFile().isEmpty())
        m_view.rememberProject(m_model.currentFile());
}

// --- New and open ---

void ProjectFiles::newProject()
{
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    if (m_model.isProjectModified()) {
        const bool save = m_occupancy.ask([this] { return m_view.askToSave(); });
        if (save && !m_saving.saveUnsavedChanges())
            return;
        if (!save)
            emit boxGivenUp();
    }
    m_model.blockSignals(false);
    m_model.clear();
    emit cleared();
    m_model.setProjectModifiedFlag(false);
    emit measurementsReplaced();
    m_view.reset();
    if (!m_model.isConnected())
        m_view.forgetLiveValues();
    m_view.setConnected(m_model.isConnected());
    emit shown();
}

void ProjectFiles::open()
{
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    const QString fileName =
        m_occupancy.ask([this] { return m_view.askOpenFile(tr("Projekt öffnen"), ProjectSaving::filter()); });
    if (fileName.isEmpty()) {
        qCDebug(lcController) << " filename is empty!";
        return;
    }
    replaceWith(fileName);
}

void ProjectFiles::openNamed(const QString &fileName)
{
    qCDebug(lcController) << Q_FUNC_INFO << fileName;
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    replaceWith(fileName);
}

void ProjectFiles::replaceWith(const QString &fileName)
{
    using Opening = FileQuestions::Opening;
    Opening how = Opening::ReadOnly; // whether it really is read-only is up to the lock
    if (QFileInfo(fileName).isFile()) {
        if (const std::optional<LockOwner> owner = m_lock.reserve(fileName))
            how = m_questions.howToOpen(fileName, *owner);
    }
    const bool opened = how != Opening::Not && replace(fileName);
    m_lock.dropReservation();
    if (opened && how == Opening::Copy)
        detachFromFile();
}

void ProjectFiles::detachFromFile()
{
    m_model.setCurrentFile({});
    m_edits.markModified();
}

bool ProjectFiles::replace(const QString &fileName)
{
    if (m_model.isProjectModified() && m_occupancy.ask([this] { return m_view.askToSave(); })
        && !m_saving.saveUnsavedChanges())
        return false;
    const quint64 structure = m_model.structureRevision();
    const bool opened = load(fileName);
    if (opened)
        m_edits.dropKept(); // they were meant for the project that is gone
    else
        m_edits.applyKept();
    // A failed attempt leaves them alone, and then a recording continues in its shot.
    if (m_model.structureRevision() != structure)
        emit measurementsReplaced();
    showOpened(fileName, opened);
    return opened;
}

bool ProjectFiles::load(const QString &fileName)
{
    const ProgressScope progress(m_progress, tr("Loading..."));
    const LineHold hold(m_lines);
    return m_model.open(fileName);
}

void ProjectFiles::showOpened(const QString &fileName, bool opened)
{
    if (opened && !m_model.isConnected())
        m_view.forgetLiveValues();
    m_view.setConnected(m_model.isConnected());
    emit shown();
    m_view.tabHome()->refreshRecentProjects(); // the file may be gone
    if (opened)
        m_view.rememberProject(m_model.currentFile());
    else
        m_questions.tellNotOpened(fileName, m_model.lastFileFault());
}

// --- Quit ---

void ProjectFiles::quit()
{
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    if (!confirmQuit())
        return;
    emit quitting();
    m_view.reset();
    emit boxGivenUp();
    m_view.writeSettings();
    QCoreApplication::quit();
}

bool ProjectFiles::confirmQuit()
{
    qCDebug(lcController).noquote().nospace() << Q_FUNC_INFO << " modelChanged=" << m_model.isProjectModified();
    if (!m_model.isProjectModified() && !m_occupancy.ask([this] { return m_view.askToQuit(); }))
        return false;
    // Samples may have come in while that question was open; then the other question has to be asked too.
    return !m_model.isProjectModified() || confirmLosingChanges();
}

bool ProjectFiles::confirmLosingChanges()
{
    switch (m_occupancy.ask([this] { return m_view.askToSaveAndQuit(); })) {
    case QMessageBox::Save: // changes made during the save are still unsaved
        return m_saving.saveUnsavedChanges() && (!m_model.isProjectModified() || confirmQuit());
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}
