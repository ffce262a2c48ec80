#pragma once

#include "model/storage/filestamp.h"

#include <QCryptographicHash>
#include <QIODevice>

#include <memory>

/// New content for a file, kept apart until it is whole. While it is written it has no name where the file system can
/// do that, so that nothing stays behind if the program is killed. Brings what is written to the disk bit by bit: all
/// at once at the end would take so long that the window would freeze.
class StagedFile : public QIODevice
{
public:
    /// `target` is the file to replace, with links resolved; it need not exist. The new file gets its attributes.
    explicit StagedFile(const QString &target);
    /// Throws away what has not been put in place.
    ~StagedFile() override;

    /// In the folder of the target. False with errorNumber() set.
    [[nodiscard]] bool begin() { return beginIn({}); }
    /// In another folder, readable for this user only; then putInPlace() must not be called. Empty: that of the target.
    [[nodiscard]] bool beginIn(const QString &folder);
    /// The whole content is on the disk now; false if any write before fell short.
    [[nodiscard]] bool finish();
    /// Takes the place of the target in one step, after finish(); what is in the folder is on the disk afterwards. An
    /// old file stays under the name `keptAs` unless that is empty, and there is a whole file at every moment.
    [[nodiscard]] bool putInPlace(const QString &keptAs);

    /// Takes owner, mode and access list from this file instead of the target.
    void setAccessOf(const QString &file) { m_accessOf = file; }
    /// Ends lines as the system does, which matters on Windows only.
    void setText(bool isText) { m_isText = isText; }
    /// errno of what failed first; 0 if nothing did.
    [[nodiscard]] int errorNumber() const { return m_error; }
    /// True if putInPlace() has kept the old file.
    [[nodiscard]] bool hasKept() const { return m_hasKept; }
    [[nodiscard]] qint64 bytesWritten() const { return m_written; }
    /// Of what has been written; size and hash from the first byte on, the time after finish().
    [[nodiscard]] FileStamp stamp() const;
    /// Reads back what was written, from an offset; the number of bytes, or -1.
    [[nodiscard]] qint64 readBack(char *data, qint64 size, qint64 offset) const;

    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override;

private:
    class Place;
    static constexpr qint64 kMostWaiting = qint64(1024) * 1024;

    [[nodiscard]] bool check(bool isGood);

    QString m_target;
    QString m_accessOf;
    std::unique_ptr<Place> m_place;
    QCryptographicHash m_hash;
    qint64 m_written = 0;
    qint64 m_waiting = 0;
    int m_error = 0;
    bool m_hasKept = false;
    bool m_isText = false;
};
