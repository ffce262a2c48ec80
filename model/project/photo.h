#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

/// Why a file gave no picture.
enum class PhotoFault { None, Unreadable, NoPicture, TooLarge };

struct Photo
{
    QImage image; ///< null unless there is no fault
    PhotoFault fault = PhotoFault::None;
};

/// The longest edge of a picture in a project, in pixels. Enough to look at, and small enough to be saved every time.
constexpr int kLongestPhotoEdge = 1600;
/// A file of more pixels is refused before it is decoded: a small file may decode to gigabytes.
constexpr qint64 kMostPhotoPixels = 125000000;

/// Suffixes of the formats that are read, in lower case, without the dot.
[[nodiscard]] QStringList photoSuffixes();
/// A picture from a regular file, upright as the camera was held, its longest edge at most kLongestPhotoEdge.
[[nodiscard]] Photo readPhoto(const QString &fileName);
/// The same for a picture that is in memory already; null stays null.
[[nodiscard]] QImage fittedPhoto(const QImage &image);
