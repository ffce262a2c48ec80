#pragma once

#include <QString>

#include <functional>

class QIODevice;

/// Lets `write` fill a new file and puts it in the place of an existing one only if every byte has arrived: a failure
/// at any point leaves the old file whole. A symbolic link is followed. False if `write` returns false, on a write
/// error, if something other than a regular file has that name, and in a folder that cannot be written to. `pause`
/// is called often while the space of a replaced file is given back, when the new one is in place already.
[[nodiscard]] bool replaceFile(
    const QString &fileName, const std::function<bool(QIODevice &target)> &write,
    const std::function<void()> &pause = [] {});
