#include "model/blackbox/blackboxfile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 kHead = 4096; // bytes; time stamp and first samples tell two shots apart

} // namespace

QByteArray blackBoxFingerprint(const QString &fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(file.read(kHead));
    return hash.result() + QByteArray::number(file.size());
}
