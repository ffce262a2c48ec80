#include "model/blackbox/importedfiles.h"

void ImportedFiles::add(const QString &absolutePath)
{
    if (!m_files.contains(absolutePath))
        m_files.append(absolutePath);
}
