#include "controller/project/projectsaving.h"

#include "controller/occupancy.h"
#include "controller/project/fileprogress.h"
#include "controller/project/proposedname.h"
#include "controller/recording/linehold.h"
#include "controller/recording/projectedits.h"
#include "model/model.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QScopedValueRollback>

namespace {

const QLatin1String kProjectSuffix(".vnt");

} // namespace

ProjectSaving::ProjectSaving(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits)
    : m_view(desk.view)
    , m_model(desk.model)
    , m_occupancy(desk.occupancy)
    , m_progress(progress)
    , m_lines(lines)
    , m_edits(edits)
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
    // A file of another kind that was opened by mistake is not replaced.
    if (fileName.isEmpty() || m_model.openLosses().isForeign) {
        saveAs();
        return;
    }
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    m_saved = saveTo(fileName);
}

void ProjectSaving::saveAs()
{
    m_saved = false;
    if (m_occupancy.refuseWhileOccupied())
        return;
    m_view.commitInput();
    const QString fileName = askFileToSave();
    if (!fileName.isEmpty())
        m_saved = saveTo(fileName);
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

/// The file that the project has; else one named after the project.
QString ProjectSaving::proposedFile() const
{
    if (!m_model.currentFile().isEmpty())
        return m_model.currentFile();
    const QString name = proposedFileName(m_model.projectData().name);
    return name.isEmpty() ? QString() : name + kProjectSuffix;
}

bool ProjectSaving::saveTo(const QString &fileName)
{
    if (m_beforeWriting)
        m_beforeWriting();
    bool saved = false;
    {
        const ProgressScope progress(m_progress, tr("Saving..."));
        const LineHold hold(m_lines);
        saved = m_model.save(fileName);
    }
    m_edits.applyKept();
    if (saved)
        showSaved(fileName);
    else
        warn(tr("Das Projekt konnte nicht gespeichert werden!"));
    return saved;
}

void ProjectSaving::showSaved(const QString &fileName)
{
    if (!m_model.isProjectMetaSaved())
        warn(tr("Das Projekt ist gespeichert, aber Grenzen, Schwellen, Bezeichnungen und "
                "Zeitstempel der Auswertung konnten nicht gespeichert werden!"));
    m_view.rememberProject(m_model.currentFile());
    m_view.showStatus(tr("Projekt gespeichert: %1").arg(fileName));
}

void ProjectSaving::warn(const QString &text)
{
    m_occupancy.ask([&] { m_view.showWarning(text, tr("Problem")); });
}
