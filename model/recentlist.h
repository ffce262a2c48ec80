#pragma once

#include <QStringList>

#include <functional>

class QVariant;

/// Lists of what was used last: the newest first, each entry once, none longer than kMaxRecent.
namespace recentlist {

constexpr int kMaxRecent = 5;

/// The list with the entry in front. An empty entry changes nothing.
[[nodiscard]] QStringList withFront(const QStringList &list, const QString &entry,
                                    Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);

/// What stored settings hold of a list: the first entries that are accepted, without repetitions. Anything else in
/// there, of whatever type and size, is left out.
[[nodiscard]] QStringList fromSettings(const QVariant &stored, const std::function<bool(const QString &)> &isAccepted,
                                       Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);

/// How paths of this platform are compared.
[[nodiscard]] Qt::CaseSensitivity pathSensitivity();

/// The one path of an existing file, whatever links or detours lead to it; looks at the file. The absolute path if
/// there is no such file.
[[nodiscard]] QString canonicalPath(const QString &fileName);

} // namespace recentlist
