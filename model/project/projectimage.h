#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QSize>

/// The image as PNG; empty for a null image.
[[nodiscard]] QByteArray toPng(const QPixmap &image);

/// Remembers the PNG of a picture until the picture changes, as encoding it takes a good part of a second.
class EncodedImage
{
public:
    [[nodiscard]] QByteArray png(const QPixmap &image);
    /// The PNG that the picture was read from, so that it is written back as it was.
    void remember(const QPixmap &image, QByteArray png);
    /// Size of the PNG that is remembered.
    [[nodiscard]] int bytes() const { return m_png.size(); }

private:
    qint64 m_key = 0; ///< QPixmap::cacheKey() of the picture; 0 for a null one
    QByteArray m_png;
};

// A picture as a project file has it is either the bytes of a PNG or, if that alone would not give back the text of the
// file, the JSON text of its value; empty for none. Bytes of a PNG never begin as JSON does.

/// From the JSON text of the value.
[[nodiscard]] QByteArray encodedImage(QByteArray json);
[[nodiscard]] bool isPng(const QByteArray &image);
/// The bytes that should be a PNG, of either kind.
[[nodiscard]] QByteArray pngOf(const QByteArray &image);

/// What the PNG says of its size, before it is decoded; invalid for what is no PNG.
[[nodiscard]] QSize pngSize(const QByteArray &png);
/// A null image for what cannot be decoded. Takes four bytes a pixel and more: look at the size first.
[[nodiscard]] QPixmap fromPng(const QByteArray &png);
/// The image made smaller, so that no edge is longer than `edge`. Null also if the image would have to be decoded as a
/// whole for that, but has more than `mostPixels`.
[[nodiscard]] QPixmap reducedPng(const QByteArray &png, int edge, qint64 mostPixels);
