#include "controller/journal/journal.h"

#include "controller/logging.h"
#include "model/model.h"

#include <QDir>

#include <utility>

namespace {

QString reasonFor(const JournalFault &fault)
{
    switch (fault.kind) {
    case JournalFault::Kind::NoSpace:
        return Journal::tr("kein Speicherplatz");
    case JournalFault::Kind::NotAllowed:
        return Journal::tr("keine Schreibrechte");
    case JournalFault::Kind::Other:
        break;
    }
    return fault.detail;
}

JournalBase baseOf(const Model &model, const QString &programVersion)
{
    JournalBase base;
    base.programVersion = programVersion;
    base.started = QDateTime::currentDateTime();
    base.file = model.currentFile();
    // As it was read or written: what it has become since, the project does not know.
    const FileStamp stamp = model.files().knownStamp();
    if (stamp.isThere()) {
        base.fileSize = stamp.size;
        base.fileTime = stamp.modified / 1000000;
    }
    return base;
}

} // namespace

/// The lock is given back after the file was removed.
struct Journal::File
{
    explicit File(const QString &name)
        : lock(JournalFolder::lock(name))
        , file(name)
    {}

    std::unique_ptr<QLockFile> lock;
    JournalFile file;
};

Journal::Journal(Model &model, const JournalOptions &options, std::function<bool()> isRecording)
    : m_model(model)
    , m_folder(options.folder)
    , m_options(options)
    , m_isRecording(std::move(isRecording))
{
    publish();
    if (options.folder.isEmpty())
        return;
    m_timer.setInterval(m_options.handOver);
    connect(&m_timer, &QTimer::timeout, this, &Journal::tick);
    // Arrives even if the model's signals are blocked.
    connect(&m_model, &Model::fileStateChanged, this, &Journal::follow);
    follow();
}

Journal::~Journal()
{
    if (m_discarded || !m_model.isProjectModified())
        end();
    else
        (void)secure();
}

/// Ticks only while there is something to protect. What is saved or given up is removed at once, as the file may differ
/// from what a journal that is left says.
void Journal::follow()
{
    if (!m_model.isProjectModified()) {
        m_timer.stop();
        end();
    } else if (!m_timer.isActive() && !m_discarded) {
        m_timer.start();
    }
}

/// Also while a file is being written: that lets events in only where the project is complete.
void Journal::tick()
{
    noteEndOfShot();
    if (mayWrite() && handOver())
        forceIfDue();
}

void Journal::takeChanges()
{
    if (m_timer.isActive() && mayWrite())
        (void)handOver();
}

bool Journal::mayWrite() const
{
    return !m_sinceFault.isValid() || m_sinceFault.elapsed() >= m_options.retry;
}

bool Journal::secure()
{
    return m_timer.isActive() && handOver() && (m_isForced || force());
}

void Journal::discard()
{
    m_discarded = true;
    m_timer.stop();
    end();
}

bool Journal::handOver()
{
    const bool isContinued = m_file && m_file->file.isUsable() && m_generation == m_model.files().generation();
    if (!isContinued && !begin())
        return false;
    JournalDelta delta = m_tracker.changes(m_model.project(), m_model.changeCount(), QDateTime::currentDateTime());
    if (delta.blocks.empty()) {
        m_tracker.commit(std::move(delta));
        return true;
    }
    if (!m_file->file.append(delta.blocks)) {
        fail(m_file->file.fault().value_or(JournalFault()));
        return false;
    }
    m_tracker.commit(std::move(delta));
    m_isForced = false;
    m_sinceFault.invalidate();
    m_isTold = m_isTold && m_isForceFailing; // it is handed over; that it is forced, is yet to be seen
    dropOld();
    return true;
}

/// The old file, if there is one, is removed when the new one holds everything.
bool Journal::begin()
{
    auto file = std::make_unique<File>(m_folder.newFile());
    if (!file->lock || !file->file.isUsable()) {
        fail(file->file.fault().value_or(JournalFault()));
        file->file.remove();
        return false;
    }
    m_old = m_old ? std::move(m_old) : std::move(m_file);
    m_file = std::move(file);
    m_generation = m_model.files().generation();
    m_tracker.begin(baseOf(m_model, m_options.programVersion), m_model.files().saved());
    m_sinceForce.start();
    qCDebug(lcController).noquote() << Q_FUNC_INFO << m_file->file.fileName();
    publish();
    return true;
}

void Journal::dropOld()
{
    if (const std::unique_ptr<File> old = std::move(m_old))
        old->file.remove();
}

void Journal::end()
{
    dropOld();
    if (!m_file)
        return;
    qCDebug(lcController).noquote() << Q_FUNC_INFO << m_file->file.fileName();
    m_file->file.remove();
    m_file.reset();
    m_sinceFault.invalidate();
    m_isTold = m_isForceFailing = false;
    m_isForced = true;
    publish();
}

// --- Forced writes ---

void Journal::noteEndOfShot()
{
    const bool isRecording = m_isRecording && m_isRecording();
    const quint64 structure = m_model.structureRevision();
    // A shot also ends where the next one begins.
    if ((std::exchange(m_wasRecording, isRecording) && !isRecording)
        || std::exchange(m_structure, structure) != structure)
        m_shotEnded = true;
}

void Journal::forceIfDue()
{
    if (m_isForced) {
        m_shotEnded = false;
        return;
    }
    const int pause = m_lastForce > m_options.slowForce ? m_lastForce * m_options.pausePerForce : 0;
    const int wait = m_shotEnded ? pause : qMax(pause, m_options.force);
    if (m_sinceForce.elapsed() >= wait)
        (void)force();
}

bool Journal::force()
{
    QElapsedTimer time;
    time.start();
    const bool forced = m_file->file.force();
    m_lastForce = static_cast<int>(time.elapsed());
    m_longestForce = qMax(m_longestForce, m_lastForce);
    m_sinceForce.start();
    qCDebug(lcController).noquote().nospace()
        << Q_FUNC_INFO << " ms=" << m_lastForce << " longest=" << m_longestForce << " bytes=" << m_file->file.size();
    publish();
    m_isForceFailing = !forced;
    if (!forced) {
        fail(m_file->file.fault().value_or(JournalFault()));
        return false;
    }
    m_isForced = true;
    m_isTold = false;
    m_shotEnded = false;
    return true;
}

// --- What is told ---

void Journal::fail(const JournalFault &fault)
{
    m_sinceFault.start();
    qCDebug(lcController).noquote() << Q_FUNC_INFO << m_folder.path() << fault.detail;
    if (std::exchange(m_isTold, true))
        return;
    emit told(
        tr("Ungespeicherte Änderungen können nicht gesichert werden (%1: %2). Die Aufzeichnung läuft weiter; bitte "
           "das Projekt speichern.")
            .arg(QDir::toNativeSeparators(m_folder.path()), reasonFor(fault)));
}

void Journal::publish()
{
    JournalInfo info;
    info.folder = m_folder.path();
    info.file = m_file ? m_file->file.fileName() : QString();
    info.lastForced = m_longestForce < 0 ? -1 : m_lastForce;
    info.longestForced = m_longestForce;
    m_model.setJournalInfo(info);
}
