#include "model/blackbox/importedfiles.h"

#include "model/blackbox/blackboxfile.h"

void ImportedFiles::setFiles(const QStringList &files)
{
    m_files = files;
    m_fingerprints.clear();
    for (const QString &file : files)
        remember(file);
}

void ImportedFiles::add(const QString &absolutePath)
{
    if (!m_files.contains(absolutePath))
        m_files.append(absolutePath);
    remember(absolutePath);
}

// A file that is gone has no fingerprint. An empty one in the set would match every unreadable file.
void ImportedFiles::remember(const QString &file)
{
    const QByteArray fingerprint = blackBoxFingerprint(file);
    if (!fingerprint.isEmpty())
        m_fingerprints.insert(fingerprint);
}
