#pragma once

#include "controller/desk.h"
#include "controller/logger/loggercopies.h"

#include <QCoreApplication>

class BoxFolders;
class TransferDialogs;

/// Takes the logger files of a folder on this computer into the temporary directory and offers them in the tab.
class LocalFolder
{
    Q_DECLARE_TR_FUNCTIONS(LocalFolder)

public:
    /// All references must outlive this.
    LocalFolder(const Desk &desk, TransferDialogs &dialogs, const BoxFolders &folders);

    /// Asks for the folder; returns when its files are copied, with events processed meanwhile.
    void open();
    /// Ends the copying that is under way.
    void cancel() { m_isCancelled = true; }
    /// Without any message; see LoggerCopies::copyAll().
    QStringList copy(const QString &folder, const QDir &target);
    /// The original of a copy, absolute; empty for another file.
    [[nodiscard]] QString originOf(const QString &copy) const { return m_copies.originOf(copy); }

private:
    [[nodiscard]] LoggerCopies::Result copyShown(const QString &folder);
    void tell(const LoggerCopies::Result &result, const QString &folder);

    Desk m_desk;
    TransferDialogs &m_dialogs;
    const BoxFolders &m_folders;
    LoggerCopies m_copies;
    bool m_isCancelled = false;
};
