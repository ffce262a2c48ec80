#pragma once

#include "model/storage/filestamp.h"

/// Remembers the state of a file when this program read or wrote it last, and tells whether somebody else has changed
/// it since.
class DiskCopy
{
public:
    enum class State {
        Same,
        Changed, ///< or never read or written by this program
        Gone,
    };

    void note(const QString &fileName, const FileStamp &stamp);
    void forget() { *this = DiskCopy(); }
    /// As noted; that of no file if it is another file.
    [[nodiscard]] FileStamp stamp(const QString &fileName) const;
    /// Reads the file, with pauses, only if its time differs while its size does not.
    [[nodiscard]] State state(const QString &fileName, const std::function<void()> &pause);

private:
    QString m_fileName;
    FileStamp m_stamp;
};
