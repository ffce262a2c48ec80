#include "model/project/projectimage.h"

#include <QBuffer>
#include <QImageReader>

#include <utility>

namespace {

// Selects the fastest compression. The best one makes photos only a little smaller, but takes several times as long,
// and the window is frozen meanwhile.
constexpr int kFastPng = 80;

} // namespace

QByteArray toPng(const QPixmap &image)
{
    QBuffer buffer;
    if (image.isNull() || !buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG", kFastPng))
        return {};
    return buffer.data();
}

QByteArray EncodedImage::png(const QPixmap &image)
{
    if (image.cacheKey() == m_key)
        return m_png;
    m_png = toPng(image);
    m_key = m_png.isEmpty() ? 0 : image.cacheKey();
    return m_png;
}

void EncodedImage::remember(const QPixmap &image, QByteArray png)
{
    m_key = image.cacheKey();
    m_png = image.isNull() ? QByteArray() : std::move(png);
}

QPixmap fromPng(QByteArray png)
{
    constexpr qint64 kMostPixels = 100000000;
    QBuffer buffer(&png);
    QImageReader reader(&buffer, "PNG");
    const QSize size = reader.canRead() ? reader.size() : QSize();
    if (!size.isValid() || qint64(size.width()) * size.height() > kMostPixels)
        return {};
    return QPixmap::fromImageReader(&reader);
}
