#pragma once

#include "controller/desk.h"
#include "controller/logger/loggercopies.h"
#include "controller/logger/transferdialogs.h"

#include <QCoreApplication>

#include <optional>

class DemoLink;
class MesotraConnector;

/// Brings logger files into the temporary directory and offers them in the tab: those of days that the box has logged,
/// and those of a folder on this computer.
class LoggerFetch
{
    Q_DECLARE_TR_FUNCTIONS(LoggerFetch)

public:
    /// All references must outlive the fetch, which shows the messages of all transfers of the connector. The temporary
    /// directory is created when it is needed.
    LoggerFetch(const Desk &desk, MesotraConnector &connector, const DemoLink &demo, const QString &temporaryDirectory);

    /// Fetches the days that are selected in the tab; returns when that is over, with events processed meanwhile.
    void fetchSelected();
    /// Ends a fetch that is under way.
    void cancel();
    void openLocalFolder();
    /// See LoggerCopies::copyAll().
    QStringList copyLocal(const QString &folder, const QDir &target);

private:
    [[nodiscard]] std::optional<QDir> temporaryDirectory();
    [[nodiscard]] QStringList fetch(const QStringList &dates, const QDir &target);
    [[nodiscard]] bool fetchDay(const QString &date, const QDir &target, QStringList &fetched);
    void offer(const QStringList &dates, const QDir &target);

    Desk m_desk;
    MesotraConnector &m_connector;
    const DemoLink &m_demo;
    TransferDialogs m_dialogs;
    LoggerCopies m_copies;
    QString m_temporaryDirectory;
    bool m_cancelled = false;
};
