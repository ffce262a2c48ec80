#include "model/project/photo.h"

#include "model/logging.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr QSize kLargest(kLongestPhotoEdge, kLongestPhotoEdge);

/// A strip of one pixel stays one pixel high.
QSize fitted(QSize size)
{
    const bool isLarger = size.width() > kLongestPhotoEdge || size.height() > kLongestPhotoEdge;
    return isLarger ? size.scaled(kLargest, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)) : size;
}

Photo fault(PhotoFault fault, const QImageReader &reader)
{
    qCDebug(lcModel) << "no picture:" << reader.errorString() << reader.size();
    return {{}, fault};
}

Photo read(QImageReader &reader)
{
    reader.setAutoTransform(true);
    const bool isKnown = reader.canRead() && photoSuffixes().contains(QString::fromLatin1(reader.format()));
    const QSize size = isKnown ? reader.size() : QSize();
    if (size.isEmpty())
        return fault(PhotoFault::NoPicture, reader);
    if (qint64(size.width()) * size.height() > kMostPhotoPixels)
        return fault(PhotoFault::TooLarge, reader);
    if (fitted(size) != size)
        reader.setScaledSize(fitted(size)); // decodes a large photo at a fraction of its size
    const QImage image = reader.read();
    return image.isNull() ? fault(PhotoFault::NoPicture, reader) : Photo{fittedPhoto(image), PhotoFault::None};
}

} // namespace

QStringList photoSuffixes()
{
    // Plain pictures only; others can be programs, or name other files.
    QStringList suffixes;
    const QList<QByteArray> readable = QImageReader::supportedImageFormats();
    for (const char *suffix : {"jpg", "jpeg", "png", "bmp", "gif", "webp", "tif", "tiff"}) {
        if (readable.contains(suffix))
            suffixes += QString::fromLatin1(suffix);
    }
    return suffixes;
}

Photo readPhoto(const QString &fileName)
{
    QFile file(fileName);
    // Opening a pipe would wait for whoever writes into it.
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCDebug(lcModel).noquote() << "could not open file:" << fileName;
        return {{}, PhotoFault::Unreadable};
    }
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    return read(reader);
}

QImage fittedPhoto(const QImage &image)
{
    QImage result = image;
    result.setDevicePixelRatio(1.0);
    const QSize size = fitted(image.size());
    return size == image.size() ? result : result.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
