#pragma once

#include <QAbstractSocket>
#include <QString>

/// Why there is no link to the box, in a few words, such as "Verbindung abgelehnt".
[[nodiscard]] QString linkReason(QAbstractSocket::SocketError error);

/// The same as whole sentences that name the address and what the user can do next.
[[nodiscard]] QString linkAdvice(QAbstractSocket::SocketError error, const QString &address);
