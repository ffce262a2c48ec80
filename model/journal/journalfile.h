#pragma once

#include <QFile>
#include <QString>

#include <optional>
#include <vector>

/// Why a journal cannot be written.
struct JournalFault
{
    enum class Kind { NoSpace, NotAllowed, Other };

    Kind kind = Kind::Other;
    QString detail; ///< in the words of the system
};

/// The file of a journal while it is written. Nothing is kept back in the program: what append() was given outlives the
/// program's death, what force() returned for outlives that of the computer.
class JournalFile
{
public:
    /// Creates a file, which must not exist, with the mark of a journal; readable for its owner only. Whether that
    /// was possible is to be asked by isUsable().
    explicit JournalFile(const QString &fileName);
    ~JournalFile();
    Q_DISABLE_COPY_MOVE(JournalFile)

    /// Of the last call that failed.
    [[nodiscard]] std::optional<JournalFault> fault() const { return m_fault; }
    /// False if the file could not be created, or if a failed write could not be undone: nothing more can be appended.
    [[nodiscard]] bool isUsable() const { return m_usable; }
    /// Hands all blocks over to the system. On a failure the file becomes what it was before; false then.
    [[nodiscard]] bool append(const std::vector<QByteArray> &blocks);
    /// Waits until the disk has what was appended. False on a failure.
    [[nodiscard]] bool force();
    /// Deletes the file.
    void remove();

    [[nodiscard]] QString fileName() const { return m_file.fileName(); }
    [[nodiscard]] qint64 size() const { return m_size; } ///< bytes

private:
    void noteFault();

    QFile m_file;
    qint64 m_size = 0;
    std::optional<JournalFault> m_fault;
    bool m_usable = false;
};
