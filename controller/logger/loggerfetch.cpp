#include "controller/logger/loggerfetch.h"

#include "controller/link/demolink.h"
#include "controller/logger/boxfolders.h"
#include "controller/logger/loggercopies.h"
#include "controller/logger/transferdialogs.h"
#include "controller/logger/transferscope.h"
#include "controller/logging.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "model/blackbox/loggerfile.h"
#include "view/blackbox/tabblackbox.h"
#include "view/window/view.h"

#include <QLocale>

LoggerFetch::LoggerFetch(const Desk &desk, MesotraConnector &connector, const DemoLink &demo, TransferDialogs &dialogs,
                         const BoxFolders &folders)
    : m_desk(desk)
    , m_connector(connector)
    , m_demo(demo)
    , m_dialogs(dialogs)
    , m_folders(folders)
    , m_day(connector.scp(), folders)
{
    QObject::connect(&m_day, &DayFetch::progress, &m_day,
                     [this](int arrived, int total) { showProgress(arrived, total); });
}

void LoggerFetch::fetchSelected()
{
    if (m_desk.occupancy.refuseWhileOccupied() || m_desk.occupancy.refuseWhileConnecting() || m_demo.refuseTransfer())
        return;
    const QStringList dates = m_desk.view.tabBlackBox()->selectedDates();
    if (!areDays(dates) || !m_dialogs.prepare(m_folders))
        return;
    qCDebug(lcController) << "dirListToFetch:" << dates;
    fetch(dates);
}

/// All or none: a fetch of the others only would look complete.
bool LoggerFetch::areDays(const QStringList &dates)
{
    for (const QString &date : dates) {
        if (!blackBoxDirectory(date)) {
            m_connector.scp().refuseDate(date);
            return false;
        }
    }
    return true;
}

void LoggerFetch::fetch(const QStringList &dates)
{
    const TransferScope scope(m_desk, tr("Dateien übertragen..."));
    m_isCancelled = false;
    m_box = m_connector.scp().usedAddress(m_connector.hostAddress());
    m_dialogs.beginSeries();
    int fetched = 0;
    for (int i = 0; i < dates.size() && !m_isCancelled && !m_dialogs.isGivenUp(); ++i) {
        m_desk.view.tabBlackBox()->setTransferProgress(i, dates.size());
        m_dialogs.beginTransfer(dates.at(i), dates.size() - i - 1);
        const ScpOutcome outcome = fetchDay(dates.at(i));
        fetched += outcome == ScpOutcome::Done ? 1 : 0;
        // Anything else would fail in the same way for the next day.
        if (outcome != ScpOutcome::Done && outcome != ScpOutcome::Failed && outcome != ScpOutcome::Crashed)
            break;
    }
    m_dialogs.endSeries();
    m_desk.view.showStatus(tr("%1 von %2 Tagen übertragen.").arg(fetched).arg(dates.size()));
}

ScpOutcome LoggerFetch::fetchDay(const QString &date)
{
    const QString directory = blackBoxDirectory(date).value_or(QString());
    const ScpOutcome outcome = m_day.run(m_box, directory);
    if (m_day.hasOtherBox())
        forgetOtherBox();
    if (!m_day.isMoved())
        m_dialogs.show(
            {tr("Problem"), tr("Die Dateien vom %1 konnten nicht in den Ordner der Box verschoben werden:\n%2")
                                .arg(date, QDir::toNativeSeparators(m_folders.placeOf(m_box, directory)))});
    offer(date, outcome == ScpOutcome::Done);
    return outcome;
}

/// What is shown of the box that had this address before is no longer where it was.
void LoggerFetch::forgetOtherBox()
{
    TabBlackBox *tab = m_desk.view.tabBlackBox();
    const QStringList entries = tab->list(); // was sent by the box that is there now
    tab->forgetBox();
    tab->setList(entries);
}

/// What has arrived can be imported, also if it is not all.
void LoggerFetch::offer(const QString &date, bool isComplete)
{
    const QDir day(m_folders.placeOf(m_box, blackBoxDirectory(date).value_or(QString())));
    const QStringList files = loggerFilesIn(day);
    if (files.isEmpty() && !isComplete)
        return;
    for (const QString &file : files)
        qCDebug(lcController).noquote() << "New file:" << file;
    ReadingTurns turns;
    m_desk.view.tabBlackBox()->addFetchedFiles(date, loggerFiles(files, turns.counter()), isComplete);
}

void LoggerFetch::showProgress(int arrived, int total)
{
    const QLocale locale;
    const QString number = locale.toString(arrived);
    m_desk.view.tabBlackBox()->setTransferDetail(total > 0 ? tr("%1 von %2 Dateien").arg(number, locale.toString(total))
                                                           : tr("%1 Dateien").arg(number));
}

void LoggerFetch::cancel()
{
    if (!m_desk.occupancy.isUnderWay(Task::Fetch))
        return;
    m_isCancelled = true; // or the loop would go on with the next day
    m_connector.scp().cancel();
}
