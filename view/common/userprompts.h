#pragma once

#include "view/common/choice.h"

#include <QMessageBox>
#include <QString>

#include <functional>
#include <optional>

/// Everything that asks the user or waits for an answer. The program answers with dialogs, tests from a script.
class UserPrompts
{
public:
    virtual ~UserPrompts() = default;

    /// Buttons carry the texts "Speichern", "Verwerfen", "Abbrechen", "Ja", "Nein", "OK". Closing the box answers
    /// with the escape button: Abbrechen if there is one, else Nein, else Speichern, else the last of the list.
    [[nodiscard]] virtual QMessageBox::StandardButton ask(const QString &title, const QString &text,
                                                          QMessageBox::StandardButtons buttons) = 0;
    /// The index of the answer, or Choice::kClosed if the box was closed or left with Escape.
    [[nodiscard]] virtual int choose(const Choice &choice) = 0;
    virtual void inform(const QString &title, const QString &text) = 0;
    virtual void warn(const QString &title, const QString &text) = 0;
    /// Empty: cancelled.
    [[nodiscard]] virtual QString openFileName(const QString &title, const QString &folder, const QString &filter) = 0;
    [[nodiscard]] virtual QString saveFileName(const QString &title, const QString &folder, const QString &filter) = 0;
    /// An existing folder; empty: cancelled.
    [[nodiscard]] virtual QString openFolder(const QString &title, const QString &folder) = 0;
    /// The reconnect dialog; nothing if it was rejected. The answer looks like an IPv4 address or a host name.
    [[nodiscard]] virtual std::optional<QString> askAddress(const QString &current) = 0;
    /// Closes the dialog that is open, if any, as if the user had.
    virtual void withdraw() {}
    /// Why askAddress() is about to be asked; empty: without a reason.
    virtual void setAddressReason(const QString & /*reason*/) {}
    /// Decides which texts askAddress() accepts; an implementation may ignore it.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): who has use for it keeps it
    virtual void setAddressValidator(std::function<bool(const QString &)> /*isValid*/) {}
};
