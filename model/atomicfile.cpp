#include "model/atomicfile.h"

#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

namespace {

/// Brings what is written to the disk bit by bit. At the end, all at once, that would take so long that the window
/// would stand still.
class SteadyFile : public QSaveFile
{
public:
    using QSaveFile::QSaveFile;

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        const qint64 written = QSaveFile::writeData(data, size);
        m_waiting += written;
        if (m_waiting < kMostWaiting)
            return written;
        m_waiting = 0;
        return bringToDisk() ? written : -1;
    }

private:
    static constexpr qint64 kMostWaiting = 1024 * 1024;

    [[nodiscard]] bool bringToDisk()
    {
#ifdef Q_OS_LINUX
        return flush() && fdatasync(handle()) == 0;
#else
        return true;
#endif
    }

    qint64 m_waiting = 0;
};

} // namespace

bool replaceFile(const QString &fileName, const std::function<bool(QIODevice &target)> &write)
{
    const QFileInfo existing(fileName);
    if (existing.exists() && !existing.isFile())
        return false; // renaming over a device or a pipe would remove it
    SteadyFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    // commit() alone does not notice a write that fell short.
    if (!write(file) || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}
