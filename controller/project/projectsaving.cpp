#include "controller/project/projectsaving.h"

#include "controller/occupancy.h"
#include "controller/project/fileprogress.h"
#include "controller/project/filequestions.h"
#include "controller/project/projectlock.h"
#include "controller/project/proposedname.h"
#include "controller/recording/linehold.h"
#include "controller/recording/projectedits.h"
#include "model/model.h"
#include "model/storage/atomicfile.h"
#include "view/common/faulttext.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

namespace {

const QLatin1String kProjectSuffix(".vnt");

} // namespace

ProjectSaving::ProjectSaving(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits,
                             ProjectLock &lock, const FileQuestions &questions)
    : m_view(desk.view)
    , m_model(desk.model)
    , m_occupancy(desk.occupancy)
    , m_progress(progress)
    , m_lines(lines)
    , m_edits(edits)
    , m_lock(lock)
    , m_questions(questions)
{}

QString ProjectSaving::filter()
{
    return tr("Ventaro Dateien (*.vnt)");
}

bool ProjectSaving::saveUnsavedChanges(const std::function<void()> &beforeWriting)
{
    const QScopedValueRollback<std::function<void()>> called(m_beforeWriting, beforeWriting);
    m_saved = false;
    emit m_view.saveProject(); // as if the user had asked for it; ends in save()
    return m_saved;
}

void ProjectSaving::save()
{
    m_saved = false;
    const QString fileName = m_model.currentFile();
    m_lock.retry();
    if (m_lock.owner())
        m_view.showStatus(tr("Das Projekt ist nur zum Lesen geöffnet: Bitte einen anderen Namen wählen."));
    // A file of another kind that was opened by mistake is not replaced.
    if (fileName.isEmpty() || m_lock.owner() || m_model.openLosses().isForeign) {
        saveAs();
        return;
    }
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    m_saved = saveTo(fileName) && m_model.isProjectMetaSaved();
}

void ProjectSaving::saveAs()
{
    m_saved = false;
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    const QString fileName = askFileToSave();
    if (!fileName.isEmpty())
        m_saved = saveTo(fileName) && m_model.isProjectMetaSaved();
}

/// Empty: cancelled.
QString ProjectSaving::askFileToSave()
{
    // Without the suffix the dialog for opening would not show the file.
    return m_occupancy.ask([this] {
        return m_view.questions().saveFileWithSuffix(tr("Projekt speichern"), filter(), kProjectSuffix,
                                                     Qt::CaseInsensitive, {},
                                                     {Questions::kProjectFolder, proposedFile()});
    });
}

/// The file that the project has, or a name beside it if that must not be replaced; else one named after the project.
QString ProjectSaving::proposedFile() const
{
    const QFileInfo current(m_model.currentFile());
    if (m_lock.owner() || m_model.openLosses().isForeign)
        return current.dir().filePath(current.completeBaseName() + tr(" (Kopie)") + kProjectSuffix);
    if (!m_model.currentFile().isEmpty())
        return m_model.currentFile();
    const QString name = proposedFileName(m_model.projectData().name);
    return name.isEmpty() ? QString() : name + kProjectSuffix;
}

/// Until it is saved somewhere or the user gives up.
bool ProjectSaving::saveTo(QString fileName)
{
    for (;;) {
        const Outcome outcome = tryToSave(fileName);
        if (outcome == Outcome::Saved)
            return true;
        m_lock.dropReservation();
        if (outcome == Outcome::Elsewhere)
            fileName = askFileToSave();
        if (outcome == Outcome::GivenUp || fileName.isEmpty())
            return false;
    }
}

ProjectSaving::Outcome ProjectSaving::tryToSave(const QString &fileName)
{
    const Outcome target = checkTarget(fileName);
    if (target != Outcome::Saved)
        return target;
    if (m_beforeWriting)
        m_beforeWriting();
    const bool saved = write(fileName);
    m_edits.applyKept();
    if (saved) {
        showSaved(fileName);
        return Outcome::Saved;
    }
    switch (m_questions.afterFailure(m_model.lastFileFault())) {
    case FileQuestions::Saving::Here:
        return Outcome::Again;
    case FileQuestions::Saving::Elsewhere:
        return Outcome::Elsewhere;
    default:
        return Outcome::GivenUp;
    }
}

/// Whether saving there would undo somebody else's work; Saved means that nothing speaks against it.
ProjectSaving::Outcome ProjectSaving::checkTarget(const QString &fileName)
{
    using Answer = FileQuestions::Saving;
    Answer answer = Answer::Here;
    if (const std::optional<LockOwner> owner = m_lock.reserve(fileName)) {
        answer = m_questions.whereInstead(fileName, *owner);
    } else if (realFile(fileName) == realFile(m_model.currentFile())) {
        const DiskCopy::State state = m_model.fileOnDisk();
        const bool isGone = state == DiskCopy::State::Gone;
        // Without its folder, or with something else in its place, it cannot be saved anyway, and that will be said.
        const QFileInfo file(fileName);
        if (state != DiskCopy::State::Same && (isGone ? file.dir().exists() : file.isFile()))
            answer = m_questions.whetherToReplace(fileName, isGone);
    }
    if (answer == Answer::Here)
        return Outcome::Saved;
    return answer == Answer::Elsewhere ? Outcome::Elsewhere : Outcome::GivenUp;
}

bool ProjectSaving::write(const QString &fileName)
{
    const ProgressScope progress(m_progress, tr("Saving..."));
    const LineHold hold(m_lines);
    return m_model.save(fileName);
}

void ProjectSaving::showSaved(const QString &fileName)
{
    if (!m_model.isProjectMetaSaved())
        m_questions.warn(
            FaultText::appendedTo(tr("Das Projekt ist gespeichert, aber Zeitstempel, Bezeichnungen, Einheiten, Grenzen "
                                     "und Schwellen konnten nicht gespeichert werden!"),
                                  m_model.projectMetaFault()));
    m_view.rememberProject(m_model.currentFile());
    const QString text =
        m_model.isOldFileKept() ? tr("Projekt gespeichert: %1") : tr("Projekt ohne Sicherungskopie gespeichert: %1");
    m_view.showStatus(text.arg(fileName));
}
