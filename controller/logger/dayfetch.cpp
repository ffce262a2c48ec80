#include "controller/logger/dayfetch.h"

#include "controller/logger/boxfolders.h"
#include "device/protocol/scpoutput.h"
#include "device/scptransfer.h"

#include <QDir>
#include <QDirIterator>

#include <utility>

namespace {

constexpr int kMostOutput = 4096; // the number of files is among the first lines

} // namespace

DayFetch::DayFetch(ScpTransfer &scp, const BoxFolders &folders, int interval)
    : m_scp(scp)
    , m_folders(folders)
{
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &DayFetch::look);
}

ScpOutcome DayFetch::run(const QString &box, const QString &directory)
{
    m_hasOtherBox = false;
    m_place = m_folders.placeOfFetch(directory);
    m_folders.beginFetch(box, directory);
    const bool hadFiles = amount().files > 0;
    ScpOutcome outcome = attempts(box, directory);
    if (m_scp.hadNewKey()) {
        // What was there before the fetch may be of the box that had this address before.
        m_hasOtherBox = true;
        m_folders.putAside(box);
        if (hadFiles) {
            m_folders.putFetchAside(directory);
            outcome = attempts(box, directory);
        }
    }
    m_isMoved = m_folders.endFetch(box, directory);
    return outcome;
}

ScpOutcome DayFetch::attempts(const QString &box, const QString &directory)
{
    m_output.clear();
    m_total = 0;
    m_before = amount();
    m_timer.start();
    const ScpOutcome outcome =
        m_scp.fetch(box, directory, m_folders.temporaryDirectory().path(),
                    {[this](const QByteArray &bytes) { takeOutput(bytes); }, [this] { return hasGrown(); }});
    m_timer.stop();
    return outcome;
}

DayFetch::Amount DayFetch::amount() const
{
    Amount amount;
    for (QDirIterator entry(m_place, QDir::Files); entry.hasNext();) {
        entry.next();
        ++amount.files;
        amount.bytes += entry.fileInfo().size(); // files that are not complete count too
    }
    return amount;
}

/// An attempt that brought nothing would bring nothing again.
bool DayFetch::hasGrown()
{
    m_output.clear();
    const Amount now = amount();
    const Amount before = std::exchange(m_before, now);
    return now.files > before.files || now.bytes > before.bytes;
}

void DayFetch::takeOutput(const QByteArray &bytes)
{
    if (m_total > 0 || m_output.size() > kMostOutput)
        return;
    m_output += bytes;
    const std::optional<ScpFolderSize> size = folderSizeOf(QString::fromLatin1(m_output));
    m_total = size ? size->files : 0;
}

/// Only the names are read: a day may have thousands of files.
void DayFetch::look()
{
    int arrived = 0;
    for (QDirIterator entry(m_place, {QStringLiteral("*.bb")}, QDir::Files); entry.hasNext(); entry.next())
        ++arrived;
    emit progress(arrived, m_total);
}
