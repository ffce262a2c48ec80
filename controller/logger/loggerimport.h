#pragma once

#include "controller/desk.h"

#include <QCoreApplication>

class FileProgress;
class ImportSummary;
class LineQueue;
class ProjectEdits;
class Recorder;
class SensorDescription;

/// Imports logger files into the project.
class LoggerImport
{
    Q_DECLARE_TR_FUNCTIONS(LoggerImport)

public:
    /// All references must outlive the import.
    LoggerImport(const Desk &desk, FileProgress &progress, LineQueue &lines, ProjectEdits &edits, Recorder &recorder);

    /// Refused while a recording runs; asks about files that the project has already.
    void run(const QStringList &files);

private:
    [[nodiscard]] bool refuseWhileRecording();
    [[nodiscard]] QStringList withoutUnwantedRepeats(const QStringList &files);
    [[nodiscard]] ImportSummary importAsOneStep(const QStringList &files);
    [[nodiscard]] ImportSummary readFiles(const QStringList &files);
    void readFile(const QString &file, ImportSummary &summary);
    void finish(const SensorDescription &before);
    void show(const ImportSummary &summary);

    Desk m_desk;
    FileProgress &m_progress;
    LineQueue &m_lines;
    ProjectEdits &m_edits;
    Recorder &m_recorder;
};
