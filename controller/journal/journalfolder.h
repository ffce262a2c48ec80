#pragma once

#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

/// A journal that no running program writes; no other program takes it while this exists.
struct LeftJournal
{
    QString file; ///< absolute
    std::unique_ptr<QLockFile> lock;
};

/// The folder in which every running program keeps a journal, each with a lock file beside it.
class JournalFolder
{
public:
    /// An empty path: no journals are kept, and none are found.
    explicit JournalFolder(const QString &path);

    [[nodiscard]] QString path() const { return m_path; }
    /// A name that no journal has; creates the folder. The lock is to be taken before the file is created.
    [[nodiscard]] QString newFile() const;
    /// Null if another program has it. The lock of a program that has died is taken over.
    [[nodiscard]] static std::unique_ptr<QLockFile> lock(const QString &file);
    /// What programs that have ended left behind, the oldest first.
    [[nodiscard]] std::vector<LeftJournal> left() const;
    /// Gives an unreadable journal a name under which it is not found again; the new name, or empty on a failure.
    [[nodiscard]] static QString setAside(const LeftJournal &journal);

private:
    QString m_path;
};
