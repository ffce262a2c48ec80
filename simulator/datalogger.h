#pragma once

#include "simulator/mouldcycle.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QString>

/// The box's own storage: a folder with one folder per day, "dir-yyyymmdd", and in it one text file per run, "*.bb".
/// Without a folder it stores nothing. A write error is logged once per run.
class DataLogger
{
public:
    /// Created if it is missing, as soon as something is written. Ends a run in progress.
    void setFolder(const QString &folder);
    [[nodiscard]] bool isActive() const { return !m_folder.isEmpty(); }

    /// Begins the file of a run; `period` in ms for each sample. An unfinished run is ended.
    void begin(const QDateTime &time, int period);
    void add(const SampleValues &values);
    void end();
    /// The file of the current or last run; empty if there was none.
    [[nodiscard]] QString fileName() const { return m_file.fileName(); }

    /// Everything that the folder holds, as the list block that goes over the wire.
    [[nodiscard]] QByteArray listBlock() const;

private:
    void write(const QByteArray &text);

    QString m_folder;
    QFile m_file;
};
