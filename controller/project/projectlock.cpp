#include "controller/project/projectlock.h"

#include "controller/logging.h"
#include "model/model.h"
#include "model/storage/atomicfile.h"

#include <QLockFile>
#include <QSysInfo>

#include <utility>

bool LockOwner::isHere() const
{
    return host == QSysInfo::machineHostName();
}

ProjectLock::ProjectLock(Model &model)
    : m_model(model)
{
    connect(&model, &Model::fileStateChanged, this, &ProjectLock::follow);
    follow();
}

ProjectLock::~ProjectLock() = default;

/// Takes no lock, and names nobody, where a lock file cannot be made.
std::optional<LockOwner> ProjectLock::take(const QString &file, Lock &lock)
{
    const QString lockFile = file + QStringLiteral(".lock");
    auto attempt = std::make_unique<QLockFile>(lockFile);
    attempt->setStaleLockTime(0); // only the end of its program makes a lock void, however old it is
    lock = {file, nullptr};
    if (attempt->tryLock(0)) {
        lock.lock = std::move(attempt);
        return {};
    }
    LockOwner owner;
    owner.lockFile = lockFile;
    if (attempt->error() == QLockFile::LockFailedError) {
        if (attempt->getLockInfo(&owner.process, &owner.host, &owner.program))
            return owner;
        // It names nobody, as after a power cut. That of a running program cannot be removed.
        if (attempt->removeStaleLockFile() && attempt->tryLock(0)) {
            lock.lock = std::move(attempt);
            return {};
        }
    }
    qCDebug(lcController) << "no lock for" << file << attempt->error();
    return {};
}

std::optional<LockOwner> ProjectLock::reserve(const QString &file)
{
    const QString real = realFile(file);
    if (real == m_held.file)
        return m_owner;
    if (real == m_reserved.file)
        return {};
    return take(real, m_reserved);
}

void ProjectLock::dropReservation()
{
    m_reserved = {};
}

void ProjectLock::follow()
{
    const QString current = m_model.currentFile();
    const QString real = current.isEmpty() ? QString() : realFile(current);
    if (real == m_held.file)
        return;
    m_held = {};
    std::optional<LockOwner> owner;
    if (!real.isEmpty() && real == m_reserved.file)
        std::swap(m_held, m_reserved);
    if (!real.isEmpty() && !m_held.lock)
        owner = take(real, m_held);
    setOwner(owner);
}

void ProjectLock::retry()
{
    if (m_owner)
        setOwner(take(QString(m_held.file), m_held));
}

void ProjectLock::setOwner(const std::optional<LockOwner> &owner)
{
    const bool hasChanged = owner.has_value() || m_owner.has_value();
    m_owner = owner;
    if (hasChanged)
        emit ownerChanged();
}
