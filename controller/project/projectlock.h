#pragma once

#include <QObject>

#include <memory>
#include <optional>

class Model;
class QLockFile;

/// A running program that has a project open.
struct LockOwner
{
    QString host;
    QString program;
    qint64 process = 0;
    QString lockFile;

    /// True if it runs on this computer.
    [[nodiscard]] bool isHere() const;
};

/// Holds the lock file beside the project that is open, so that a second program does not save over it unnoticed. It
/// follows the name of the model's file: whatever opens, saves or gives up a project, the lock goes along. A project
/// in a folder where no lock can be made is open without one. The lock of a program that has ended is taken over.
class ProjectLock : public QObject
{
    Q_OBJECT

public:
    /// The model must outlive the lock.
    explicit ProjectLock(Model &model);
    ~ProjectLock() override;

    /// Locks a file that is about to be opened or saved, until its name is that of the model's file or for
    /// dropReservation(). Nothing if that is done or cannot be; else who has the file.
    [[nodiscard]] std::optional<LockOwner> reserve(const QString &file);
    void dropReservation();

    /// Takes the lock of the model's file if whoever had it has closed the project meanwhile.
    void retry();

    /// Who else has the file of the model open; then nothing may be saved there.
    [[nodiscard]] const std::optional<LockOwner> &owner() const { return m_owner; }

signals:
    /// Somebody else has the file that is open now, or not any more.
    void ownerChanged();

private:
    struct Lock
    {
        QString file; // with links resolved; empty: none
        std::unique_ptr<QLockFile> lock;
    };

    void follow();
    void setOwner(const std::optional<LockOwner> &owner);
    [[nodiscard]] static std::optional<LockOwner> take(const QString &file, Lock &lock);

    Model &m_model;
    Lock m_held;
    Lock m_reserved;
    std::optional<LockOwner> m_owner;
};
