#pragma once

#include "model/storage/filefault.h"

#include <QCoreApplication>

/// Says in the user's language why a file could not be read or written, and what can be done about it.
class FaultText
{
    Q_DECLARE_TR_FUNCTIONS(FaultText)

public:
    /// One sentence without a line break; empty if there is no fault.
    [[nodiscard]] static QString reason(const FileFault &fault);
    /// What the user can do; may be empty.
    [[nodiscard]] static QString nextStep(const FileFault &fault);
    /// What has failed, then reason and next step in lines of their own.
    [[nodiscard]] static QString appendedTo(const QString &failure, const FileFault &fault);

private:
    [[nodiscard]] static QString readingReason(const FileFault &fault);
    [[nodiscard]] static QString contentReason(const FileFault &fault);
    [[nodiscard]] static QString writingReason(const FileFault &fault);
    [[nodiscard]] static QString mediumReason(const FileFault &fault);
};
