#pragma once

#include <QString>

#include <optional>

/// Lines that the stand-in for the SCP tool writes to its standard output for the program; the tool of the other
/// platform writes others, which mean nothing here. Everything here is pure.

/// How many files a folder has on the box, and how many of them are not here yet.
struct ScpFolderSize
{
    int files = 0;
    int missing = 0;
};

[[nodiscard]] QString folderSizeLine(const ScpFolderSize &size);
/// The first such line of an output.
[[nodiscard]] std::optional<ScpFolderSize> folderSizeOf(const QString &output);

/// A box that is recognised by another key than before.
struct ScpChangedKey
{
    QString host;
    QString before; ///< fingerprints, separated by blanks; empty if they are not known
    QString now;
};

[[nodiscard]] QString changedKeyLine(const ScpChangedKey &key);
/// The first such line of an output.
[[nodiscard]] std::optional<ScpChangedKey> changedKeyOf(const QString &output);
/// The line on the standard error output if such a box is refused.
[[nodiscard]] QString refusedKeyText(const QString &host);
[[nodiscard]] bool isRefusedKey(const QString &errorOutput);
