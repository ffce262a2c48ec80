#pragma once

#include "controller/desk.h"
#include "controller/logger/dayfetch.h"

#include <QCoreApplication>
#include <QStringList>

class BoxFolders;
class DemoLink;
class MesotraConnector;
class TransferDialogs;

/// Fetches the logger files of the selected days from the box and offers them in the tab.
class LoggerFetch
{
    Q_DECLARE_TR_FUNCTIONS(LoggerFetch)

public:
    /// All references must outlive the fetch.
    LoggerFetch(const Desk &desk, MesotraConnector &connector, const DemoLink &demo, TransferDialogs &dialogs,
                const BoxFolders &folders);

    /// Fetches the days that are selected in the tab; returns when that is over, with events processed meanwhile.
    void fetchSelected();
    /// Ends a fetch that is under way.
    void cancel();

private:
    [[nodiscard]] bool areDays(const QStringList &dates);
    void fetch(const QStringList &dates);
    [[nodiscard]] ScpOutcome fetchDay(const QString &date);
    void forgetOtherBox();
    void offer(const QString &date, bool isComplete);
    void showProgress(int arrived, int total);

    Desk m_desk;
    MesotraConnector &m_connector;
    const DemoLink &m_demo;
    TransferDialogs &m_dialogs;
    const BoxFolders &m_folders;
    DayFetch m_day;
    QString m_box; // its address, while a fetch is under way
    bool m_isCancelled = false;
};
