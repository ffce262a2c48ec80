#pragma once

#include "controller/desk.h"
#include "model/project/shotorigin.h"

#include <QCoreApplication>
#include <QHash>

class BoxFolders;
class FileProgress;
class ImportOrigins;
class ImportSummary;
class LineQueue;
class LocalFolder;
class ProjectEdits;
class Recorder;
class SensorDescription;

/// Imports logger files into the project.
class LoggerImport
{
    Q_DECLARE_TR_FUNCTIONS(LoggerImport)

public:
    /// All references must outlive the import.
    LoggerImport(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits, Recorder &recorder,
                 const BoxFolders &folders, const LocalFolder &local);

    /// Refused while a recording runs; asks about files that the project has already, and before names or limits of the
    /// project are replaced by those of the files.
    void run(const QStringList &files);

private:
    [[nodiscard]] bool refuseWhileRecording();
    enum class Sensors { OfFiles, OfProject, Cancelled };

    [[nodiscard]] ImportSummary importAsOneStep(const QStringList &files, const ImportOrigins &origins,
                                                Sensors sensors);
    [[nodiscard]] ImportOrigins examine(const QStringList &files);
    [[nodiscard]] QStringList withoutUnwantedRepeats(const QStringList &files, const ImportOrigins &origins);
    [[nodiscard]] Sensors askAboutSensors(const QStringList &files);
    [[nodiscard]] ImportSummary readFiles(const QStringList &files, const ImportOrigins &origins);
    void noteOrigins(const QHash<int, ShotOrigin> &origins);
    void readFile(const QString &file, ImportSummary &summary);
    void finish(const SensorDescription &before, Sensors sensors);
    void show(const ImportSummary &summary);

    Desk m_desk;
    FileProgress &m_progress;
    LineQueue &m_lines;
    ProjectEdits &m_edits;
    Recorder &m_recorder;
    const BoxFolders &m_folders;
    const LocalFolder &m_local;
};
