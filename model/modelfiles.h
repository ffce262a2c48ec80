#pragma once

#include "model/project/openlosses.h"

#include <QString>

#include <memory>
#include <optional>

class FileWork;
class ProjectEditor;
class ModelChanges;
class QFile;
struct Project;

/// Carries the project of a model to its file and back, and knows the name of that file and whether the project was
/// modified since. `function` is the one that log lines name.
class ModelFiles
{
public:
    /// All of them must outlive this.
    ModelFiles(ProjectEditor &editor, Project &project, ModelChanges &changes, FileWork &work);

    ModelFiles(const ModelFiles &) = delete;
    ModelFiles &operator=(const ModelFiles &) = delete;
    ~ModelFiles();

    /// Reads a file completely, for the open() that follows; the model stays as it is. False if that open() would fail.
    [[nodiscard]] bool readAhead(const QString &fileName, const char *function);
    /// For an open() that will not follow.
    void forgetReadAhead();
    /// False, with the model as it was, if the file cannot be read or holds no project. Uses what was read ahead unless
    /// the file has changed since.
    [[nodiscard]] bool open(const QString &fileName, const char *function);
    [[nodiscard]] bool save(const QString &fileName, const char *function);
    [[nodiscard]] bool saveCsv(const QString &fileName, const char *function);
    /// False if the last save() wrote the project, but not the file beside it.
    [[nodiscard]] bool isMetaSaved() const { return m_metaSaved; }

    /// Of the file that was opened, until it is saved, another one is opened or a project begins.
    [[nodiscard]] const OpenLosses &openLosses() const { return m_openLosses; }

    [[nodiscard]] QString currentFile() const { return m_currentFile; }
    void setCurrentFile(const QString &absolutePath);
    [[nodiscard]] bool isModified() const { return m_modified; }
    void setModified(bool modified);

private:
    struct Opened;
    struct ReadAhead;
    [[nodiscard]] std::unique_ptr<Opened> readFile(const QString &fileName, const char *function);
    [[nodiscard]] std::unique_ptr<Opened> takeReadAhead(const QString &fileName);
    [[nodiscard]] std::optional<Opened> read(QFile &file);
    void apply(Opened &opened, const QString &absolutePath, const char *function);
    [[nodiscard]] bool writeProject(const QString &fileName);
    [[nodiscard]] bool writeCsv(const QString &fileName);
    [[nodiscard]] quint64 countChanges() const;

    ProjectEditor &m_editor;
    Project &m_project;
    ModelChanges &m_changes;
    FileWork &m_work;
    std::unique_ptr<ReadAhead> m_readAhead;
    QString m_currentFile; // absolute
    OpenLosses m_openLosses;
    bool m_modified = false;
    bool m_metaSaved = true;
};
