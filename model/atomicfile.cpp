#include "model/atomicfile.h"

#include <QFileInfo>
#include <QSaveFile>

bool replaceFile(const QString &fileName, const std::function<bool(QIODevice &target)> &write)
{
    const QFileInfo existing(fileName);
    if (existing.exists() && !existing.isFile())
        return false; // renaming over a device or a pipe would remove it
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    // commit() alone does not notice a write that fell short.
    if (!write(file) || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}
