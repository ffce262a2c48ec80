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
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTimer>

namespace {

constexpr int kBusyRetry = 20; // ms

} // namespace

ProjectFiles::ProjectFiles(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits,
                           ProjectSaving &saving, const RecordingEnd &recording, ProjectLock &lock,
                           const FileQuestions &questions)
    : m_view(desk.view)
    , m_model(desk.model)
    , m_occupancy(desk.occupancy)
    , m_progress(progress)
    , m_lines(lines)
    , m_edits(edits)
    , m_saving(saving)
    , m_recording(recording)
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
    // While a shot is being recorded, there is always more to save than a moment ago.
    if (m_model.isProjectModified() || m_recording.isRecording()) {
        const SaveAnswer answer = askToSave();
        if (answer == SaveAnswer::Stay || (answer == SaveAnswer::Save && !saveChanges()))
            return;
        if (answer == SaveAnswer::Discard)
            emit boxDismissed();
    }
    m_recording.finishForGood();
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
    emit projectReplaced();
}

SaveAnswer ProjectFiles::askToSave()
{
    return m_occupancy.ask([this] { return m_view.questions().toSaveOrStay(); });
}

/// Ends the recording when the file is chosen, so that all of it is in the file.
bool ProjectFiles::saveChanges()
{
    return m_saving.saveUnsavedChanges([this] { m_recording.finish(); });
}

void ProjectFiles::open()
{
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    const QString fileName = m_occupancy.ask([this] {
        return m_view.questions().openFile(tr("Projekt öffnen"), ProjectSaving::filter(), {Questions::kProjectFolder});
    });
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
    const FileQuestions::Opening how = howToOpen(fileName);
    const bool opened = how != FileQuestions::Opening::Not && replace(fileName);
    m_lock.dropReservation();
    m_model.forgetReadAhead();
    if (opened && how == FileQuestions::Opening::Copy)
        detachFromFile();
}

/// Asks only if somebody else has the file; else the lock is reserved.
FileQuestions::Opening ProjectFiles::howToOpen(const QString &fileName)
{
    const bool isFile = QFileInfo(fileName).isFile();
    const std::optional<LockOwner> owner = isFile ? m_lock.reserve(fileName) : std::optional<LockOwner>();
    if (!owner)
        return FileQuestions::Opening::ReadOnly; // whether it really is read-only is up to the lock
    if (readAhead(fileName))
        return m_questions.howToOpen(fileName, *owner);
    showOpened(fileName, false);
    return FileQuestions::Opening::Not;
}

void ProjectFiles::detachFromFile()
{
    m_model.setCurrentFile({});
    m_edits.markModified();
}

bool ProjectFiles::replace(const QString &fileName)
{
    if (!mayReplaceWith(fileName))
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
    if (opened)
        emit projectReplaced();
    return opened;
}

/// Asks about what would be lost, but not for a file that cannot be opened.
bool ProjectFiles::mayReplaceWith(const QString &fileName)
{
    if (!m_model.isProjectModified() && !m_recording.isRecording())
        return true;
    if (!readAhead(fileName)) {
        showOpened(fileName, false);
        return false;
    }
    if (m_recording.isRecording() && !mayEndRecording())
        return false;
    if (m_model.isProjectModified()) {
        const SaveAnswer answer = askToSave();
        if (answer == SaveAnswer::Stay || (answer == SaveAnswer::Save && !saveChanges()))
            return false;
    }
    m_recording.finishForGood(); // the rest of the shot must not land in the other project
    return true;
}

bool ProjectFiles::mayEndRecording()
{
    Choice choice;
    choice.title = tr("Projekt öffnen");
    choice.text = tr("Eine Aufzeichnung läuft. Sie wird beendet, bevor das andere Projekt geöffnet wird.");
    choice.answers = QStringList{tr("Weiter aufzeichnen"), tr("Beenden und öffnen")};
    return m_occupancy.ask([&] { return m_view.questions().choose(choice); }) == 1;
}

bool ProjectFiles::readAhead(const QString &fileName)
{
    bool readable = false;
    {
        const ProgressScope progress(m_progress, tr("Loading..."));
        const LineHold hold(m_lines);
        readable = m_model.readAhead(fileName);
    }
    m_edits.applyKept(); // the project that is open is still the one that they were meant for
    return readable;
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

void ProjectFiles::leaveAtOnce()
{
    if (m_model.isBusy()) {
        QTimer::singleShot(kBusyRetry, this, &ProjectFiles::leaveAtOnce);
        return;
    }
    m_view.commitInput();
    emit interrupted();
    emit boxGivenUp();
    emit interruptionTaken();
    m_view.reset();
    m_view.writeSettings();
    QCoreApplication::quit();
}

bool ProjectFiles::confirmQuit()
{
    qCDebug(lcController).noquote().nospace() << Q_FUNC_INFO << " modelChanged=" << m_model.isProjectModified();
    if (!m_model.isProjectModified() && !m_occupancy.ask([this] { return m_view.askToQuit(); }))
        return false;
    // Samples may have come in while that question was open or be under way; then the other one has to be asked too.
    if (!m_model.isProjectModified())
        m_recording.finish();
    return !m_model.isProjectModified() || confirmLosingChanges();
}

bool ProjectFiles::confirmLosingChanges()
{
    switch (m_occupancy.ask([this] { return m_view.askToSaveAndQuit(); })) {
    case QMessageBox::Save: // changes made during the save are still unsaved
        return saveChanges() && (!m_model.isProjectModified() || confirmQuit());
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}
