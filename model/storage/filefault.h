#pragma once

#include <QString>

/// Why a file could not be read or written.
struct FileFault
{
    enum class Kind {
        None,
        NotThere,
        NoFolder,   ///< the folder is not there: mistyped, or its medium has been taken out
        IsFolder,   ///< a folder has that name
        NotRegular, ///< a pipe, a device or the like has that name
        NoPermission,
        ReadError,
        WriteError,
        NotJson,
        CutOff,    ///< the text ends too early, as after a copy that was interrupted
        NoProject, ///< JSON, but no object
        TooLarge,  ///< for the file system
        OutOfMemory,
        NoSpace,
        NoQuota, ///< the user may not store more there
        ReadOnlyMedium,
        MediumGone,
        NameTooLong,
        ChangedMeanwhile, ///< somebody else has written the file that was to be replaced
        NoFormat,         ///< the ending of the name belongs to no format
    };

    Kind kind = Kind::None;
    QString path;            ///< as the user knows it
    qint64 missingBytes = 0; ///< NoSpace: how much more is needed; 0 if not known
    qint64 line = 0;         ///< NotJson, CutOff: where the text stops to be valid, from 1; 0 if not known
    qint64 byte = 0;         ///< the same in the whole file, from 1
    QString systemText;      ///< the system's own words; may be empty
    QString keptCopy;        ///< the file is damaged, but this file holds what was in it before; mostly empty

    /// True if there is one.
    explicit operator bool() const { return kind != Kind::None; }
};

/// The fault that a system call has left in errno. `other` is taken for numbers that say nothing to a user.
[[nodiscard]] FileFault systemFault(int error, const QString &path, FileFault::Kind other);

/// Why a file cannot be opened for reading, found by looking at it. ReadError if it looks as if it could.
[[nodiscard]] FileFault openingFault(const QString &path);

/// Why nothing can be written under a name whatever it is: empty, or taken by something other than a regular file. None
/// if there is no such reason.
[[nodiscard]] FileFault targetFault(const QString &path);
