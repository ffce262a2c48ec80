#pragma once

#include "model/blackbox/blackboxfile.h"
#include "model/blackbox/importedfiles.h"

#include <optional>

class FileWork;
class ProjectEditor;
class ModelChanges;
class QFile;
struct Project;

/// Adds the shots of logger files to the project of a model.
class BlackBoxImport
{
public:
    /// All of them must outlive this.
    BlackBoxImport(ProjectEditor &editor, Project &project, ModelChanges &changes, FileWork &work);

    /// Appends the shot of a file, unless it holds none, takes over what it says about the sensors and puts it on
    /// the list of files. False if it is no regular file or cannot be read. `function` is the one that log lines name.
    [[nodiscard]] bool add(const QString &fileName, const char *function);
    /// Replaces the list of files, and the fingerprints that the project keeps.
    void setFiles(const QStringList &files);
    /// What the last add() could not take over.
    [[nodiscard]] BlackBoxLosses losses() const { return m_losses; }
    [[nodiscard]] const ImportedFiles &files() const { return m_files; }
    [[nodiscard]] ImportedFiles &files() { return m_files; }

private:
    [[nodiscard]] std::optional<BlackBoxDocument> read(QFile &file, const char *function);
    void apply(BlackBoxDocument &document, const char *function);
    void remember(const QString &file);

    ProjectEditor &m_editor;
    Project &m_project;
    ModelChanges &m_changes;
    FileWork &m_work;
    ImportedFiles m_files;
    BlackBoxLosses m_losses;
};
