#pragma once

#include <QByteArray>
#include <QSet>
#include <QStringList>

/// The logger files that were imported, and their fingerprints, which tell them from later files of the same name.
class ImportedFiles
{
public:
    [[nodiscard]] QStringList files() const { return m_files; }
    void setFiles(const QStringList &files);
    /// A file that is already on the list keeps its place.
    void add(const QString &absolutePath);
    [[nodiscard]] QSet<QByteArray> fingerprints() const { return m_fingerprints; }
    [[nodiscard]] bool operator==(const ImportedFiles &other) const
    {
        return m_files == other.m_files && m_fingerprints == other.m_fingerprints;
    }

private:
    void remember(const QString &file);

    QStringList m_files;
    QSet<QByteArray> m_fingerprints;
};
