#pragma once

#include "model/storage/filefault.h"
#include "model/storage/filestamp.h"

#include <QString>

#include <functional>

class QIODevice;

/// How a file is replaced.
struct ReplaceOptions
{
    bool keepsOld = false; ///< the old file stays beside the new one, see backupName()
    QString accessOf;      ///< whose owner, mode and access list the new file gets; empty: those of the old file
    QString rescueFolder;  ///< keeps the old content while a file has to be rewritten where it is; empty: not done then
    bool isText = false;   ///< ends lines as the system does
    std::function<bool()> mayReplace; ///< asked when the new content is whole; may be empty
};

/// How that went.
struct Replacement
{
    FileFault fault;       ///< of the first thing that failed; the old file is whole then unless it names a copy
    FileStamp stamp;       ///< of the new file
    bool lacksOld = false; ///< the old file should have been kept, but could not be

    /// True if the new file is in place.
    explicit operator bool() const { return !fault; }
};

/// Lets `write` fill a new file and puts it in the place of an existing one only if every byte has arrived: a failure
/// at any point leaves the old file whole. Owner, group, mode, access lists and extended attributes survive as far as
/// the system allows. A symbolic link is followed. A file in a folder that cannot be written to is rewritten where it
/// is. Fails if `write` returns false, on a write error, and if what has that name is write-protected or no regular
/// file.
/// `write` may be called a second time, for a device that only counts, to find out how much space is missing. `pause`
/// is called often while the space of a replaced file is given back, when the new one is in place already.
[[nodiscard]] Replacement replaceFile(
    const QString &fileName, const std::function<bool(QIODevice &target)> &write,
    const std::function<void()> &pause = [] {}, const ReplaceOptions &options = {});

/// Under which name the old file is kept.
[[nodiscard]] QString backupName(const QString &fileName);

/// The file that a name leads to when all links are followed; also for one that does not exist yet.
[[nodiscard]] QString realFile(const QString &fileName);
