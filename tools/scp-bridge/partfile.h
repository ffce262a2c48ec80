#pragma once

#include <QByteArray>

/// A file that is being fetched into the folder of its day. It has its name only when it is complete, and then also
/// the time that it has on the box; what was written before a run was broken off is gone on with in the next one.
class PartFile
{
public:
    /// Only remembers what the file is to become. Names and folder hold bytes as the system takes them; `name` has no
    /// folder in it.
    PartFile(const QByteArray &folder, const QByteArray &name, quint64 size, quint32 modified);
    ~PartFile();
    Q_DISABLE_COPY_MOVE(PartFile)

    /// True if a regular file of this name, size and time is there already.
    [[nodiscard]] bool isComplete() const;
    /// The name under which it is kept until then: with the time, so that only the same file is gone on with.
    [[nodiscard]] QByteArray partName() const;
    [[nodiscard]] QByteArray name() const { return m_name; }
    [[nodiscard]] quint64 size() const { return m_size; }
    /// Bytes that are there, from the beginning on.
    [[nodiscard]] quint64 written() const { return m_written; }

    /// All of them: false, and errno says why. Nothing can be appended behind size().
    [[nodiscard]] bool open();
    [[nodiscard]] bool append(const QByteArray &bytes);
    [[nodiscard]] bool finish();

private:
    [[nodiscard]] QByteArray path(const QByteArray &name) const { return m_folder + '/' + name; }

    QByteArray m_folder;
    QByteArray m_name;
    quint64 m_size;
    quint32 m_modified;
    quint64 m_written = 0;
    int m_file = -1;
};
