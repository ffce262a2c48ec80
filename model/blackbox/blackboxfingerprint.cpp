#include "model/blackbox/blackboxfile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 kChunk = 256 * 1024; // bytes, for which nobody has to wait

} // namespace

QByteArray blackBoxFingerprint(const QString &fileName, const std::function<void(qint64 bytes)> &progress)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (QByteArray chunk = file.read(kChunk); !chunk.isEmpty(); chunk = file.read(kChunk)) {
        hash.addData(chunk);
        if (progress)
            progress(chunk.size());
    }
    return file.error() == QFileDevice::NoError ? hash.result() : QByteArray();
}
