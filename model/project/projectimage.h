#pragma once

#include <QByteArray>
#include <QPixmap>

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

/// A null image for what is no PNG and for one of more than 100 million pixels: a small file may decode to gigabytes.
[[nodiscard]] QPixmap fromPng(QByteArray png);
