#pragma once

#include "model/project/projectimage.h"

#include <QByteArray>
#include <QPixmap>
#include <QSize>

#include <array>
#include <functional>

constexpr int kNumProjectImages = 5;
/// The pictures of a project as the file has them, see projectimage.h; empty for none.
using EncodedImages = std::array<QByteArray, kNumProjectImages>;

/// How a picture of a project is shown.
enum class PictureState {
    None,       ///< there is none
    Whole,      ///< as it is
    Reduced,    ///< smaller than it is, to save memory
    TooLarge,   ///< not at all, to save memory
    Undecodable ///< not at all
};

/// The pictures of a project, beside the PNG that each was read from or last written as. What was read but is shown
/// reduced or not at all is written as it was read.
class ImageStore
{
public:
    using Pixmaps = std::array<QPixmap, kNumProjectImages>;

    /// All pictures of a project together, in memory.
    static constexpr qint64 kMostPixels = 64000000;

    /// A picture that is not shown has a pixmap too, of one pixel, which stands for it wherever it is copied to.
    [[nodiscard]] const Pixmaps &pixmaps() const { return m_pixmaps; }
    [[nodiscard]] Pixmaps &pixmaps() { return m_pixmaps; }
    void clear() { *this = ImageStore(); }
    /// True if another store has the same picture there: not one that merely looks the same.
    [[nodiscard]] bool isSame(int image, const ImageStore &other) const;
    /// Takes over a picture with its PNG, without copying pixels.
    void take(int image, const ImageStore &from);
    /// Memory that a picture takes while nobody else has it.
    [[nodiscard]] qint64 bytes(int image) const;

    // An image counts from 0 to kNumProjectImages - 1 here.
    [[nodiscard]] PictureState state(int image) const;
    /// The picture as it is shown; null for one that is not.
    [[nodiscard]] QPixmap shown(int image) const;
    /// In pixels, also of a picture that is reduced or too large; empty if nobody knows.
    [[nodiscard]] QSize size(int image) const;
    /// The PNG of a picture that is reduced or too large; empty for all others.
    [[nodiscard]] QByteArray original(int image) const;
    /// The pixels of all pictures in memory but one.
    [[nodiscard]] qint64 pixelsBeside(int image) const;

    /// Decodes the pictures one by one, the smallest first, up to `mostPixels` together; `pause` is called after each,
    /// as a large one takes long.
    [[nodiscard]] static ImageStore decoded(EncodedImages images, const std::function<void()> &pause,
                                            qint64 mostPixels = kMostPixels);
    /// What a file holds for a picture in the store, encoded when first asked for; empty for none.
    [[nodiscard]] QByteArray encodedOne(int image) const;
    /// Encodes pictures that this store has or had; `pause` as above, and it may change the pictures in the store.
    [[nodiscard]] EncodedImages encoded(const Pixmaps &pixmaps, const std::function<void()> &pause);

private:
    /// What was read and cannot be told from the pixmap that stands for it.
    struct Kept
    {
        qint64 key = 0; ///< of the pixmap; 0 for nothing
        PictureState state = PictureState::None;
        QSize size;
        QByteArray image;
    };

    [[nodiscard]] const Kept *keptFor(const QPixmap &pixmap) const;
    void decode(std::size_t image, QByteArray encoded, qint64 mostPixels);
    void keep(std::size_t image, const QPixmap &pixmap, const Kept &kept);

    Pixmaps m_pixmaps;
    mutable std::array<EncodedImage, kNumProjectImages> m_pngs; // encoded when first asked for
    std::array<Kept, kNumProjectImages> m_kept; ///< of the file, even if other pictures have taken their places
};
