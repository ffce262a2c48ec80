#include "model/project/projectimage.h"

#include "model/json/jsonstring.h"

#include <QBuffer>
#include <QImageReader>

#include <utility>

namespace {

// Selects the fastest compression. The best one makes photos only a little smaller, but takes several times as long,
// and the window is frozen meanwhile.
constexpr int kFastPng = 80;

/// The decoder reduces pictures with three or four bytes a pixel while it reads them, unless they are interlaced.
/// Others it decodes first. These bytes have fixed places at the beginning of every PNG.
bool isReducedLineByLine(const QByteArray &png)
{
    constexpr int kDepth = 24;
    constexpr int kColorType = 25;
    constexpr int kInterlace = 28;
    return png.size() > kInterlace && png.at(kDepth) == 8 && (png.at(kColorType) == 2 || png.at(kColorType) == 6)
           && png.at(kInterlace) == 0;
}

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

QByteArray encodedImage(QByteArray json)
{
    if (json == "null" || json == "\"\"")
        return {};
    const QByteArray text = QByteArray::fromRawData(json.constData() + 1, qMax(0, json.size() - 2));
    const QByteArray bytes = json.startsWith('"') ? QByteArray::fromBase64(text) : QByteArray();
    // Only if it can be written again byte for byte: other programs break lines or leave out the padding.
    return isPng(bytes) && bytes.toBase64() == text ? bytes : json;
}

bool isPng(const QByteArray &image)
{
    return image.startsWith("\x89PNG");
}

QByteArray pngOf(const QByteArray &image)
{
    if (isPng(image) || !image.startsWith('"'))
        return isPng(image) ? image : QByteArray();
    return QByteArray::fromBase64(unescapedJson(image.mid(1, image.size() - 2)).toLatin1());
}

QSize pngSize(const QByteArray &png)
{
    QByteArray bytes = png;
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "PNG");
    return reader.canRead() ? reader.size() : QSize();
}

QPixmap fromPng(const QByteArray &png)
{
    QByteArray bytes = png;
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "PNG");
    return QPixmap::fromImageReader(&reader);
}

QPixmap reducedPng(const QByteArray &png, int edge, qint64 mostPixels)
{
    const QSize size = pngSize(png);
    if (size.isEmpty() || (!isReducedLineByLine(png) && qint64(size.width()) * size.height() > mostPixels))
        return {};
    QByteArray bytes = png;
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "PNG");
    if (size.width() > edge || size.height() > edge)
        reader.setScaledSize(size.scaled(edge, edge, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return QPixmap::fromImageReader(&reader);
}
