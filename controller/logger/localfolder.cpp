#include "controller/logger/localfolder.h"

#include "controller/logger/boxfolders.h"
#include "controller/logger/transferdialogs.h"
#include "controller/logger/transferscope.h"

#include <QElapsedTimer>

namespace {

constexpr int kMostNames = 10;     // of files in a message
constexpr int kShowInterval = 100; // ms

} // namespace

LocalFolder::LocalFolder(const Desk &desk, TransferDialogs &dialogs, const BoxFolders &folders)
    : m_desk(desk)
    , m_dialogs(dialogs)
    , m_folders(folders)
{}

void LocalFolder::open()
{
    if (m_desk.occupancy.refuseWhileOccupied() || m_desk.occupancy.refuseWhileConnecting())
        return;
    const QString folder =
        m_desk.occupancy.ask([this] { return m_desk.view.askFolder(tr("Ordner mit BlackBox-Dateien auswählen")); });
    if (folder.isEmpty() || !m_dialogs.prepare(m_folders))
        return;
    const LoggerCopies::Result result = copyShown(folder);
    if (!result.copies.isEmpty())
        m_desk.view.tabBlackBox()->addLocalFiles(result.copies);
    tell(result, folder);
}

LoggerCopies::Result LocalFolder::copyShown(const QString &folder)
{
    m_isCancelled = false; // from here on the window has its turns
    const TransferScope scope(m_desk, tr("Dateien kopieren..."));
    ReadingTurns turns;
    QElapsedTimer sinceShown;
    return m_copies.copyAll(QDir(folder), m_folders.temporaryDirectory(), [&](int done, int total) {
        if (!sinceShown.isValid() || sinceShown.elapsed() >= kShowInterval) {
            m_desk.view.tabBlackBox()->setTransferProgress(done, total);
            sinceShown.start();
        }
        turns.look();
        return !m_isCancelled;
    });
}

void LocalFolder::tell(const LoggerCopies::Result &result, const QString &folder)
{
    if (!result.failures.isEmpty()) {
        QString names = result.failures.mid(0, kMostNames).join(QLatin1Char('\n'));
        if (result.failures.size() > kMostNames)
            names += QStringLiteral("\n…");
        m_dialogs.show(
            {tr("Problem"),
             tr("%1 Dateien konnten nicht kopiert werden und fehlen in der Liste:").arg(result.failures.size())
                 + QLatin1Char('\n') + names,
             true});
    } else if (m_isCancelled) {
        m_desk.view.showStatus(tr("Abgebrochen; %1 Dateien sind kopiert.").arg(result.copies.size()));
    } else if (result.copies.isEmpty()) {
        m_desk.view.showStatus(tr("Keine BlackBox-Dateien (*.bb) in %1").arg(QDir::toNativeSeparators(folder)));
    }
}

QStringList LocalFolder::copy(const QString &folder, const QDir &target)
{
    QStringList copies;
    const LoggerCopies::Result result =
        m_copies.copyAll(QDir(folder), target, [](int /*done*/, int /*total*/) { return true; });
    for (const LoggerFile &file : result.copies)
        copies.append(file.path);
    return copies;
}
