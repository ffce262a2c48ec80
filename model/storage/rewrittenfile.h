#pragma once

#include "model/storage/filestamp.h"

class StagedFile;

/// Writes new content into an existing file where it is, for a folder in which no other file can be made. What was in
/// the file is copied into another folder first, and goes back from there if the new content does not fit.
class RewrittenFile
{
public:
    /// `folder` is made if it is missing. `pause` is called often.
    RewrittenFile(const QString &fileName, const QString &folder, const std::function<void()> &pause);

    /// Where the copy of a file's old content lies, if there is one.
    [[nodiscard]] static QString copyNameIn(const QString &folder, const QString &fileName);
    /// True if the file can be written to although nothing can be made beside it.
    [[nodiscard]] static bool isNeeded(const QString &fileName, int errorNumber);

    /// The content must be finished. False with errorNumber() set; the file is as before then unless isDamaged().
    [[nodiscard]] bool take(const StagedFile &content);
    [[nodiscard]] int errorNumber() const { return m_error; }
    /// True if neither the new content nor the old one could be written; the latter is in copyName().
    [[nodiscard]] bool isDamaged() const { return m_isDamaged; }
    /// The copy of the old content.
    [[nodiscard]] QString copyName() const { return m_copyName; }
    void removeCopy() const;
    /// Of the file after take().
    [[nodiscard]] FileStamp stamp() const;

private:
    using Part = std::function<qint64(char *data, qint64 size, qint64 offset)>;

    [[nodiscard]] bool keepCopy();
    [[nodiscard]] bool hasRoomFor(int handle, qint64 oldSize, qint64 newSize);
    [[nodiscard]] bool overwrite(int handle, const Part &part, qint64 size);
    void putBack(int handle, qint64 size);
    void keepForGood();
    bool check(bool isGood);

    QString m_fileName;
    QString m_folder;
    QString m_copyName;
    std::function<void()> m_pause;
    int m_error = 0;
    bool m_isDamaged = false;
};
