#pragma once

#include <QByteArray>
#include <QPixmap>

/// The image as PNG; empty for a null image.
[[nodiscard]] QByteArray toPng(const QPixmap &image);

/// Remembers a picture's PNG as long as the picture stays the same: making it takes a good part of a second.
class EncodedImage
{
public:
    [[nodiscard]] QByteArray png(const QPixmap &image);
    /// The PNG that the picture was read from, so that it is written back as it was.
    void remember(const QPixmap &image, QByteArray png);

private:
    qint64 m_key = 0; ///< of the picture; that of a null one is 0
    QByteArray m_png;
};

/// A null image for what is no PNG and for one of more than 100 million pixels: a small file can stand for gigabytes.
[[nodiscard]] QPixmap fromPng(QByteArray png);
