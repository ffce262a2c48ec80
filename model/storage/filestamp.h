#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// What tells one state of a file from another.
struct FileStamp
{
    qint64 size = -1;    ///< bytes; -1 if there is no such file
    qint64 modified = 0; ///< nanoseconds since 1970, as exact as the file system keeps them
    QByteArray hash;     ///< of the whole content; empty if it is not known

    [[nodiscard]] bool isThere() const { return size >= 0; }
    /// True if size and time are the same, which no program brings about by accident.
    [[nodiscard]] bool looksLike(const FileStamp &other) const
    {
        return size == other.size && modified == other.modified;
    }
};

/// Size and time of a file, without a hash.
[[nodiscard]] FileStamp stampOf(const QString &fileName);

/// The same hash as that of HashedSource and StagedFile, read from the file; empty if it cannot be read. `pause` is
/// called often.
[[nodiscard]] QByteArray hashOf(const QString &fileName, const std::function<void()> &pause);
