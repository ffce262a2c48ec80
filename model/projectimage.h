#pragma once

#include <QByteArray>
#include <QPixmap>

/// The image as PNG; empty for a null image.
[[nodiscard]] QByteArray toPng(const QPixmap &image);

/// A null image for what is no PNG and for one of more than 100 million pixels: a small file can stand for gigabytes.
[[nodiscard]] QPixmap fromPng(QByteArray png);
