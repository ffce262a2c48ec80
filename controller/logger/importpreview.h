#pragma once

#include "model/sensordescription.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>
#include <QVector>

/// What logger files say about the sensors, against what the project says: which names, units and limits of it an
/// import would replace.
class ImportPreview
{
    Q_DECLARE_TR_FUNCTIONS(ImportPreview)

public:
    explicit ImportPreview(const SensorDescription &project);

    /// Takes the file into account, which is the next one to be imported; one that cannot be read changes nothing. Only
    /// the beginning of the file is read.
    void addFile(const QString &fileName);
    /// One line for each sensor that has something known which would be replaced; empty: nothing is lost.
    [[nodiscard]] QStringList changes() const;
    /// True if the files do not say the same; the last one holds then.
    [[nodiscard]] bool isAmbiguous() const { return m_isAmbiguous; }

private:
    [[nodiscard]] static QString change(int sensor, const SensorGroup &before, const SensorGroup &after);

    SensorDescription m_before;
    SensorDescription m_after;
    QByteArray m_header; // of the files so far
    bool m_isAmbiguous = false;
};
