#include "controller/logger/loggerfetch.h"

#include "controller/link/demolink.h"
#include "controller/logger/transferdialogs.h"
#include "controller/logging.h"
#include "controller/occupancy.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "view/blackbox/tabblackbox.h"
#include "view/window/view.h"

namespace {

/// Shows for its lifetime that a fetch is under way.
class FetchScope
{
public:
    FetchScope(const Desk &desk, const QString &text)
        : m_task(desk.occupancy, Task::Fetch)
        , m_view(desk.view)
    {
        m_view.showProgress(text);
    }
    ~FetchScope()
    {
        m_view.tabBlackBox()->setTransferProgress(0, 0);
        m_view.hideProgress();
    }
    Q_DISABLE_COPY_MOVE(FetchScope)

private:
    TaskScope m_task;
    View &m_view;
};

} // namespace

LoggerFetch::LoggerFetch(const Desk &desk, MesotraConnector &connector, const DemoLink &demo,
                         const QString &temporaryDirectory)
    : m_desk(desk)
    , m_connector(connector)
    , m_demo(demo)
    , m_dialogs(desk)
    , m_temporaryDirectory(temporaryDirectory)
{
    m_dialogs.attach(m_connector.scp());
}

void LoggerFetch::fetchSelected()
{
    if (m_desk.occupancy.refuseWhileOccupied() || m_desk.occupancy.refuseWhileConnecting() || m_demo.refuseTransfer())
        return;
    const QStringList dates = m_desk.view.tabBlackBox()->selectedDates();
    // All or none: a fetch of the others only would look complete.
    for (const QString &date : dates) {
        if (!blackBoxDirectory(date)) {
            m_connector.scp().refuseDate(date);
            return;
        }
    }
    const std::optional<QDir> target = temporaryDirectory();
    if (!target)
        return;
    qCDebug(lcController) << "dirListToFetch:" << dates;
    offer(fetch(dates, *target), *target);
}

/// Created when missing; nothing, and a message, if that is not possible.
std::optional<QDir> LoggerFetch::temporaryDirectory()
{
    const QDir folder(QDir().absoluteFilePath(m_temporaryDirectory));
    if (QDir().mkpath(folder.path()))
        return folder;
    m_dialogs.show({tr("Problem"), tr("Der Ordner %1 kann nicht angelegt werden.").arg(folder.path()), false});
    return std::nullopt;
}

/// The dates whose data are here afterwards.
QStringList LoggerFetch::fetch(const QStringList &dates, const QDir &target)
{
    QStringList fetched;
    const FetchScope scope(m_desk, tr("Dateien übertragen..."));
    m_cancelled = false;
    for (int i = 0; i < dates.size() && !m_cancelled; ++i) {
        m_desk.view.tabBlackBox()->setTransferProgress(i, dates.size());
        if (!fetchDay(dates.at(i), target, fetched))
            break;
    }
    m_desk.view.showStatus(tr("%1 von %2 Tagen übertragen.").arg(fetched.size()).arg(dates.size()));
    return fetched;
}

/// False if fetching the next day would fail in the same way.
bool LoggerFetch::fetchDay(const QString &date, const QDir &target, QStringList &fetched)
{
    const QString directory = blackBoxDirectory(date).value_or(QString());
    (void)target.mkpath(directory); // the tool reports what it cannot write
    const ScpOutcome outcome = m_connector.scp().fetch(m_connector.hostAddress(), directory, target.path());
    if (outcome == ScpOutcome::Done)
        fetched.append(date);
    return outcome == ScpOutcome::Done || outcome == ScpOutcome::Failed || outcome == ScpOutcome::Crashed;
}

void LoggerFetch::offer(const QStringList &dates, const QDir &target)
{
    for (const QString &date : dates) {
        const QStringList files = loggerFilesIn(target.filePath(blackBoxDirectory(date).value_or(QString())));
        for (const QString &file : files)
            qCDebug(lcController).noquote() << "New file:" << file;
        m_desk.view.tabBlackBox()->addFetchedFiles(date, files);
    }
}

void LoggerFetch::cancel()
{
    if (!m_desk.occupancy.isUnderWay(Task::Fetch))
        return;
    m_cancelled = true; // or the loop would go on with the next day
    m_connector.scp().cancel();
}

void LoggerFetch::openLocalFolder()
{
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    const QString folder =
        m_desk.occupancy.ask([this] { return m_desk.view.askFolder(tr("Ordner mit BlackBox-Dateien auswählen")); });
    const std::optional<QDir> target = folder.isEmpty() ? std::nullopt : temporaryDirectory();
    if (!target)
        return;
    const QStringList files = copyLocal(folder, *target);
    m_desk.view.tabBlackBox()->addLocalFiles(files);
    if (files.isEmpty())
        m_desk.view.showStatus(tr("Keine BlackBox-Dateien (*.bb) in %1").arg(QDir::toNativeSeparators(folder)));
}

QStringList LoggerFetch::copyLocal(const QString &folder, const QDir &target)
{
    return m_copies.copyAll(QDir(folder), target);
}
