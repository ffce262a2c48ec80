#pragma once

#include "controller/desk.h"
#include "device/protocol/scpresult.h"

#include <QCoreApplication>
#include <QStringList>

class BoxFolders;
class ScpTransfer;

/// What the user sees of transfers from and to the box: their messages and the wait cursor. Of several transfers in a
/// row, the first that fails asks whether to go on; what fails then is told at the end, all at once.
class TransferDialogs
{
    Q_DECLARE_TR_FUNCTIONS(TransferDialogs)

public:
    /// References must outlive the dialogs.
    explicit TransferDialogs(const Desk &desk);

    /// Shows what these transfers report from now on; the dialogs must outlive them or their last report.
    void attach(ScpTransfer &transfer);
    void show(const ScpMessage &message);
    /// Makes the folder for what is fetched; false, and a message, if that is not possible.
    [[nodiscard]] bool prepare(const BoxFolders &folders);

    // --- Several transfers in a row ---
    void beginSeries();
    /// The transfer that comes next, in words, and how many there are behind it.
    void beginTransfer(const QString &name, int others);
    /// The user does not want the others after a failure.
    [[nodiscard]] bool isGivenUp() const { return m_isGivenUp; }
    void endSeries();

private:
    void showAlone(const ScpMessage &message);
    void askToGoOn(const ScpMessage &message);

    Desk m_desk;
    QString m_name; // of the transfer; empty outside of a series
    int m_others = 0;
    bool m_hasAsked = false;
    bool m_isGivenUp = false;
    QStringList m_failed; // since the question
};
