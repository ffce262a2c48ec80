#pragma once

#include <QStringList>

/// The logger files that were imported since the project was opened or begun.
class ImportedFiles
{
public:
    [[nodiscard]] QStringList files() const { return m_files; }
    void setFiles(const QStringList &files) { m_files = files; }
    /// A file that is already on the list keeps its place.
    void add(const QString &absolutePath);
    [[nodiscard]] bool operator==(const ImportedFiles &other) const { return m_files == other.m_files; }

private:
    QStringList m_files;
};
