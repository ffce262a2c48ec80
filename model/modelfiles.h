#pragma once

#include "model/journal/projectrecovery.h"
#include "model/project/openlosses.h"
#include "model/project/saveoptions.h"
#include "model/storage/diskcopy.h"
#include "model/storage/filefault.h"

#include <QString>

#include <memory>
#include <optional>

class FileWork;
class ProjectEditor;
class ModelChanges;
class QFile;
struct Project;
struct ReplaceOptions;

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
    /// Replaces the project by that of a journal, which counts as modified then; nothing, with the model as it was, if
    /// memory runs out or a file is being read or written. The contents are used up.
    [[nodiscard]] std::optional<RecoveryLosses> restore(JournalContents &contents, const char *function);
    /// Why the last save() wrote the project, but not the file beside it; the project stays modified then. None if it
    /// did.
    [[nodiscard]] const FileFault &metaFault() const { return m_metaFault; }

    /// Of the file that was opened, until it is saved, another one is opened or a project begins.
    [[nodiscard]] const OpenLosses &openLosses() const { return m_openLosses; }
    /// Why the last open(), save() or saveCsv() failed; none if it did not.
    [[nodiscard]] const FileFault &lastFault() const { return m_fault; }
    /// False if the last save() should have kept the old file, but could not.
    [[nodiscard]] bool isOldFileKept() const { return !m_lacksOld; }
    /// Whether the current file is still what was opened or saved last. Not while a file is read or written.
    [[nodiscard]] DiskCopy::State fileOnDisk(const char *function);
    /// What the current file was like then; that of no file if there is none, or if it was changed before restore().
    [[nodiscard]] FileStamp knownStamp() const { return m_diskCopy.stamp(m_currentFile); }
    void setSaveOptions(const SaveOptions &options) { m_saveOptions = options; }
    [[nodiscard]] const SaveOptions &saveOptions() const { return m_saveOptions; }

    [[nodiscard]] QString currentFile() const { return m_currentFile; }
    void setCurrentFile(const QString &absolutePath);
    [[nodiscard]] bool isModified() const { return m_modified; }
    void setModified(bool modified);
    /// What the current file holds of the project, and a number that changes whenever that does.
    [[nodiscard]] const SavedShots &saved() const { return m_saved; }
    [[nodiscard]] quint64 generation() const { return m_generation; }
    /// The project has no file, or what it holds now is what the file holds.
    void noteSaved(SavedShots saved);

private:
    struct Opened;
    struct ReadAhead;
    [[nodiscard]] std::unique_ptr<Opened> readFile(const QString &fileName, const char *function);
    [[nodiscard]] std::unique_ptr<Opened> takeReadAhead(const QString &fileName);
    [[nodiscard]] std::optional<Opened> read(QFile &file);
    void apply(Opened &opened, const QString &absolutePath, const char *function);
    [[nodiscard]] bool writeProject(const QString &fileName);
    [[nodiscard]] bool writeCsv(const QString &fileName);
    /// Runs a task that replaces a file, and keeps what it says about a failure.
    template <typename Task>
    [[nodiscard]] bool replace(const QString &fileName, const Task &task, const char *function);
    [[nodiscard]] ReplaceOptions projectOptions(const QString &fileName) const;
    [[nodiscard]] quint64 countChanges() const;
    struct Restored;
    [[nodiscard]] QStringList baseFiles(const JournalBase &base) const;
    [[nodiscard]] std::optional<Restored> readRestored(JournalContents &contents);
    void apply(Restored &restored, const JournalContents &contents, const char *function);

    ProjectEditor &m_editor;
    Project &m_project;
    ModelChanges &m_changes;
    FileWork &m_work;
    std::unique_ptr<ReadAhead> m_readAhead;
    QString m_currentFile; // absolute
    OpenLosses m_openLosses;
    bool m_modified = false;
    SavedShots m_saved;
    quint64 m_generation = 0;
    bool m_lacksOld = false;
    FileFault m_fault;
    FileFault m_metaFault;
    DiskCopy m_diskCopy;
    SaveOptions m_saveOptions;
};
