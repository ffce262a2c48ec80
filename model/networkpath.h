#pragma once

#include <QByteArray>
#include <QString>

/// True if the path lies on a drive of another computer, as far as the system can tell without asking that computer:
/// touching such a file may take a minute when the network is down. A UNC path, or one on a network drive.
[[nodiscard]] bool isOnNetwork(const QString &absolutePath);

/// The same for a table of mounts in the form of /proc/self/mounts, blanks in folders written as "\040".
[[nodiscard]] bool isOnNetwork(const QString &absolutePath, const QByteArray &mounts);
