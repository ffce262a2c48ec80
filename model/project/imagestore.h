#pragma once

#include "model/project/projectimage.h"

#include <QByteArray>
#include <QPixmap>

#include <array>
#include <functional>

constexpr int kNumProjectImages = 5;
/// The pictures of a project as PNG; empty for none.
using EncodedImages = std::array<QByteArray, kNumProjectImages>;

/// The pictures of a project, beside the PNG that each was read from or last written as.
class ImageStore
{
public:
    using Pixmaps = std::array<QPixmap, kNumProjectImages>;

    [[nodiscard]] const Pixmaps &pixmaps() const { return m_pixmaps; }
    [[nodiscard]] Pixmaps &pixmaps() { return m_pixmaps; }
    void clear() { *this = ImageStore(); }
    /// True if another store has the same picture there: not one that merely looks the same.
    [[nodiscard]] bool isSame(int image, const ImageStore &other) const;
    /// Takes over a picture with its PNG, without copying pixels.
    void take(int image, const ImageStore &from);
    /// Memory that a picture takes while nobody else has it.
    [[nodiscard]] qint64 bytes(int image) const;

    /// Decodes the PNGs one by one; `pause` is called after each, as a large one takes long.
    [[nodiscard]] static ImageStore decoded(EncodedImages pngs, const std::function<void()> &pause);
    /// Encodes pictures that this store has or had; `pause` as above, and it may change the pictures in the store.
    [[nodiscard]] EncodedImages encoded(const Pixmaps &pixmaps, const std::function<void()> &pause);

private:
    Pixmaps m_pixmaps;
    std::array<EncodedImage, kNumProjectImages> m_pngs;
};
