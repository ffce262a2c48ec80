#pragma once

#include "controller/desk.h"

#include <QAbstractSocket>
#include <QCoreApplication>
#include <QString>

#include <optional>

/// What the user is told and asked when there is no link: one message and one dialog, which close by themselves when
/// they are out of date.
class LinkDialogs
{
    Q_DECLARE_TR_FUNCTIONS(LinkDialogs)

public:
    explicit LinkDialogs(const Desk &desk);

    /// The message of an error; there is none for some.
    void tell(QAbstractSocket::SocketError error);
    /// Asks for another address than the current one. Nothing if the user does not want any.
    [[nodiscard]] std::optional<QString> askAddress(const QString &current, const QString &reason = {});
    /// Closes what is open of these.
    void withdraw();

private:
    Desk m_desk;
    bool m_isOpen = false;
};
