#include "app/theme.h"
#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "device/scptransfer.h"
#include "model/blackbox/blackboxfile.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/updatedialog.h"
#include "view/window/view.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// After a restart command the box may refuse connections for so long before that is worth a message, in ms.
constexpr int kRestartPatience = 120000;
constexpr int kReconnectInterval = 1000;

void setWaitCursor(bool waiting)
{
    if (waiting)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

QFileInfoList loggerFilesIn(const QDir &folder)
{
    return folder.entryInfoList({QStringLiteral("*.bb")}, QDir::Files, QDir::Name);
}

QStringList loggerFiles(const QDir &folder)
{
    QStringList files;
    const QFileInfoList found = loggerFilesIn(folder);
    for (const QFileInfo &file : found)
        files.append(file.absoluteFilePath());
    return files;
}

/// Replaces what is there only by a complete copy.
bool copyOver(const QFileInfo &source, const QString &target)
{
    if (QFileInfo(target).canonicalFilePath() == source.canonicalFilePath())
        return true;
    const QString part = target + QStringLiteral(".part");
    (void)QFile::remove(part); // left by a run that was broken off, or nothing
    if (!QFile::copy(source.filePath(), part))
        return false;
    (void)QFile::remove(target); // if that fails, so does the next step
    const bool replaced = QFile::rename(part, target);
    if (!replaced)
        (void)QFile::remove(part); // nothing half done stays
    return replaced;
}

/// A file of another folder that has the same name but holds something else keeps its copy.
QString placeForCopy(const QFileInfo &file, const QDir &folder, QHash<QString, QString> &copiedFrom)
{
    const QString source = file.canonicalFilePath();
    QString target = folder.absoluteFilePath(file.fileName());
    for (int i = 2; copiedFrom.value(target, source) != source; ++i) {
        if (blackBoxFingerprint(target) == blackBoxFingerprint(source))
            return target;
        target = folder.absoluteFilePath(file.completeBaseName() + QStringLiteral("-%1.").arg(i) + file.suffix());
    }
    copiedFrom.insert(target, source);
    return target;
}

/// Shows for its lifetime that a fetch is under way.
class FetchScope
{
public:
    FetchScope(bool &fetching, View *view, const QString &text)
        : m_fetching(fetching)
        , m_view(view)
    {
        m_fetching = true;
        m_view->showProgress(text);
    }
    ~FetchScope()
    {
        m_fetching = false;
        m_view->tabBlackBox()->setTransferProgress(0, 0);
        m_view->hideProgress();
    }
    Q_DISABLE_COPY_MOVE(FetchScope)

private:
    bool &m_fetching;
    View *m_view;
};

} // namespace

void Controller::connectTransfers(const ControllerOptions &options)
{
    ScpTransfer &scp = d->connector.scp();
    scp.setOptions({options.scpToolFile, theme::deviceUser, theme::devicePassword, d->address, options.scpTimeouts});
    scp.setSurroundings({[this](const ScpMessage &message) { showTransferMessage(message); }, setWaitCursor});
    const TabBlackBox *tab = d->view->tabBlackBox();
    QObject::connect(tab, &TabBlackBox::fetchClicked, this, &Controller::onTabBlackBox_fetchBlackBoxDataClicked);
    QObject::connect(tab, &TabBlackBox::openLocalFolderClicked, this,
                     &Controller::onTabBlackBox_openLocalFolderClicked);
    d->reconnectTimer.setSingleShot(true);
    d->reconnectTimer.setInterval(kReconnectInterval);
    QObject::connect(&d->reconnectTimer, &QTimer::timeout, this, &Controller::reconnectAfterRestart);
}

void Controller::showTransferMessage(const ScpMessage &message)
{
    d->prompt([&] {
        if (message.isWarning)
            d->view->showWarning(message.text, message.title);
        else
            d->view->showMessage(message.text, message.title);
    });
}

// --- Data of the box's logger ----------------------------------------------------------------------------------

void Controller::onTabBlackBox_fetchBlackBoxDataClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied() || refuseWhileConnecting() || refuseInDemo())
        return;
    const QStringList dates = d->view->tabBlackBox()->selectedDates();
    for (const QString &date : dates) {
        if (!blackBoxDirectory(date)) {
            d->connector.scp().refuseDate(date);
            return;
        }
    }
    const std::optional<QDir> target = temporaryDirectory();
    if (!target)
        return;
    qCDebug(lcController) << "dirListToFetch:" << dates;
    offerFetched(fetchDates(dates, *target), *target);
}

/// Created when missing; nothing, and a message, if that is not possible.
std::optional<QDir> Controller::temporaryDirectory()
{
    const QDir folder(QDir().absoluteFilePath(d->temporaryDirectory));
    if (QDir().mkpath(folder.path()))
        return folder;
    showTransferMessage({tr("Problem"), tr("Der Ordner %1 kann nicht angelegt werden.").arg(folder.path()), false});
    return std::nullopt;
}

/// The dates whose data are here afterwards. What cannot go better with the next date ends the fetch.
QStringList Controller::fetchDates(const QStringList &dates, const QDir &target)
{
    QStringList fetched;
    const FetchScope scope(d->fetching, d->view, tr("Dateien übertragen..."));
    d->fetchCancelled = false;
    for (int i = 0; i < dates.size() && !d->fetchCancelled; ++i) {
        d->view->tabBlackBox()->setTransferProgress(i, dates.size());
        const QString directory = blackBoxDirectory(dates.at(i)).value_or(QString());
        (void)target.mkpath(directory); // the tool reports what it cannot write
        const ScpOutcome outcome = d->connector.scp().fetch(d->connector.hostAddress(), directory, target.path());
        if (outcome == ScpOutcome::Done)
            fetched.append(dates.at(i));
        else if (outcome != ScpOutcome::Failed && outcome != ScpOutcome::Crashed)
            break;
    }
    d->view->showStatus(tr("%1 von %2 Tagen übertragen.").arg(fetched.size()).arg(dates.size()));
    return fetched;
}

void Controller::offerFetched(const QStringList &dates, const QDir &target)
{
    for (const QString &date : dates) {
        const QStringList files = loggerFiles(target.filePath(blackBoxDirectory(date).value_or(QString())));
        for (const QString &file : files)
            qCDebug(lcController).noquote() << "New file:" << file;
        d->view->tabBlackBox()->addFetchedFiles(date, files);
    }
}

bool Controller::cancelFetch()
{
    if (!d->fetching)
        return false;
    d->fetchCancelled = true;
    d->connector.scp().cancel();
    return true;
}

void Controller::onTabBlackBox_openLocalFolderClicked()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    const QString folder =
        d->prompt([this] { return d->view->askFolder(tr("Ordner mit BlackBox-Dateien auswählen")); });
    const std::optional<QDir> target = folder.isEmpty() ? std::nullopt : temporaryDirectory();
    if (!target)
        return;
    const QStringList files = copyLocalDirToTmpDir(folder, *target);
    d->view->tabBlackBox()->addLocalFiles(files);
    if (files.isEmpty())
        d->view->showStatus(tr("Keine BlackBox-Dateien (*.bb) in %1").arg(QDir::toNativeSeparators(folder)));
}

QStringList Controller::copyLocalDirToTmpDir(const QString &localDirectory, const QDir &temporaryDirectory)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    QStringList copied;
    const QFileInfoList found = loggerFilesIn(QDir(localDirectory));
    for (const QFileInfo &file : found) {
        qCDebug(lcController).noquote() << "file =" << file.fileName();
        const QString target = placeForCopy(file, temporaryDirectory, d->copiedFrom);
        if (copyOver(file, target))
            copied.append(target);
        else
            qCDebug(lcController).noquote() << "file could not be copied:" << file.fileName();
    }
    return copied;
}

// --- Firmware --------------------------------------------------------------------------------------------------

void Controller::onFirmwareUpdate()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied() || refuseWhileConnecting() || refuseInDemo())
        return;
    d->prompt([this] {
        const auto askFile = [this](const QString &title, const QString &filter) {
            return d->view->askOpenFile(title, filter);
        };
        UpdateDialog dialog(d->view, askFile, &d->connector, d->address, d->restartWait);
        QObject::connect(&dialog, &UpdateDialog::restartSent, this, [this] { d->sinceRestart.start(); });
        (void)dialog.exec(); // both buttons only close it
    });
}

/// True while the box that was told to restart may be expected to refuse connections.
bool Controller::isBoxRestarting() const
{
    return d->sinceRestart.isValid() && d->sinceRestart.elapsed() < kRestartPatience;
}

/// True if the error only says that the box is not back yet; the next attempt follows.
bool Controller::waitForRestart(QAbstractSocket::SocketError error)
{
    const bool notThere = error == QAbstractSocket::ConnectionRefusedError || error == QAbstractSocket::NetworkError
                          || error == QAbstractSocket::SocketTimeoutError;
    if (!notThere || !isBoxRestarting() || !d->view->isProgressShown())
        return false;
    d->view->showProgress(tr("Die Mesotra Box startet neu. Verbinden mit %1 ...").arg(d->connector.hostAddress()));
    d->reconnectTimer.start();
    return true;
}

void Controller::reconnectAfterRestart()
{
    if (d->linkWanted && !d->connector.isConnected() && d->view->isProgressShown())
        d->connector.connect(d->connector.hostAddress());
}
