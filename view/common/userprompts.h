#pragma once

#include "view/common/choice.h"
#include "view/common/comparison.h"
#include "view/common/standardquestion.h"

#include <QMessageBox>
#include <QString>

#include <functional>
#include <optional>

/// Everything that asks the user or waits for an answer. The program answers with dialogs, tests from a script.
class UserPrompts
{
public:
    virtual ~UserPrompts() = default;

    /// QMessageBox::NoButton if the box was closed or left with Escape.
    [[nodiscard]] virtual QMessageBox::StandardButton ask(const StandardQuestion &question) = 0;
    /// The index of the answer, or Choice::kClosed if the box was closed or left with Escape.
    [[nodiscard]] virtual int choose(const Choice &choice) = 0;
    /// QMessageBox::Yes, QMessageBox::No, or NoButton if the box was closed or left with Escape.
    [[nodiscard]] virtual QMessageBox::StandardButton compare(const Comparison &comparison) = 0;
    virtual void inform(const QString &title, const QString &text) = 0;
    virtual void warn(const QString &title, const QString &text) = 0;
    /// Dialogs for files start at a folder, or at a file in it, whose name they propose. Empty: cancelled.
    [[nodiscard]] virtual QString openFileName(const QString &title, const QString &start, const QString &filter) = 0;
    [[nodiscard]] virtual QString saveFileName(const QString &title, const QString &start, const QString &filter) = 0;
    /// An existing folder; empty: cancelled.
    [[nodiscard]] virtual QString openFolder(const QString &title, const QString &folder) = 0;
    /// The reconnect dialog; nothing if it was rejected. The answer looks like an IPv4 address or a host name.
    [[nodiscard]] virtual std::optional<QString> askAddress(const QString &current) = 0;
    /// Decides which texts askAddress() accepts; an implementation may ignore it.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): who has use for it keeps it
    virtual void setAddressValidator(std::function<bool(const QString &)> /*isValid*/) {}
    /// While true, what opens was not caused by the user, who may be typing: keys must not answer it at once. An
    /// implementation without keys may ignore it.
    virtual void setUninvited(bool /*uninvited*/) {}
};
