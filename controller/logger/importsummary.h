#pragma once

#include "model/blackbox/blackboxfile.h"

#include <QCoreApplication>
#include <QStringList>

/// The result of an import of logger files so far, and the messages about it.
class ImportSummary
{
    Q_DECLARE_TR_FUNCTIONS(ImportSummary)

public:
    void addFile(int shots, const BlackBoxLosses &losses);
    void addUnreadable(const QString &file);
    [[nodiscard]] int numUnreadable() const { return m_unreadable.size(); }

    /// One line for the status bar.
    [[nodiscard]] QString text() const;
    /// Names the first of the files that could not be read.
    [[nodiscard]] QString failureText() const;

private:
    int m_shots = 0;
    BlackBoxLosses m_losses;
    QStringList m_unreadable; // names without their folders
};
