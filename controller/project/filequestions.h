#pragma once

#include "controller/desk.h"

#include <QCoreApplication>

struct FileFault;
struct LockOwner;

/// What the user is asked and told about project files: one that somebody else has open or has changed, one that cannot
/// be opened or saved.
class FileQuestions
{
    Q_DECLARE_TR_FUNCTIONS(FileQuestions)

public:
    enum class Opening { ReadOnly, Copy, Not };
    enum class Saving { Here, Elsewhere, Not };

    explicit FileQuestions(const Desk &desk);

    /// About a project that somebody else has open.
    [[nodiscard]] Opening howToOpen(const QString &file, const LockOwner &owner) const;
    /// About a name for saving under which somebody else has a project open. Never Here.
    [[nodiscard]] Saving whereInstead(const QString &file, const LockOwner &owner) const;
    /// About a file that is not what was opened; `isGone` if there is none any more.
    [[nodiscard]] Saving whetherToReplace(const QString &file, bool isGone) const;
    /// Says why the project could not be saved; Here means another attempt.
    [[nodiscard]] Saving afterFailure(const FileFault &fault) const;

    void tellNotOpened(const QString &file, const FileFault &fault) const;
    void warn(const QString &text) const;

private:
    [[nodiscard]] static QString whoHas(const QString &file, const LockOwner &owner);

    View &m_view;
    Occupancy &m_occupancy;
};
