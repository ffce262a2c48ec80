#include "model/project/imagestore.h"

#include "model/arrayindex.h"
#include "model/project/photo.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

// A file that is read for a reduced picture, beyond which that would take too long.
constexpr qint64 kMostPixelsReduced = 100000000;

qint64 pixelsOf(QSize size)
{
    return size.isEmpty() ? 0 : qint64(size.width()) * size.height();
}

QPixmap placeholder()
{
    QPixmap pixmap(1, 1); // each has a key of its own
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

const ImageStore::Kept *ImageStore::keptFor(const QPixmap &pixmap) const
{
    if (pixmap.isNull())
        return nullptr;
    const auto found = std::find_if(m_kept.begin(), m_kept.end(),
                                    [&pixmap](const Kept &kept) { return kept.key == pixmap.cacheKey(); });
    return found == m_kept.end() ? nullptr : &*found;
}

PictureState ImageStore::state(int image) const
{
    const QPixmap &pixmap = m_pixmaps[at(image)];
    if (const Kept *kept = keptFor(pixmap))
        return kept->state;
    return pixmap.isNull() ? PictureState::None : PictureState::Whole;
}

QPixmap ImageStore::shown(int image) const
{
    const PictureState found = state(image);
    return found == PictureState::Whole || found == PictureState::Reduced ? m_pixmaps[at(image)] : QPixmap();
}

QSize ImageStore::size(int image) const
{
    const Kept *kept = keptFor(m_pixmaps[at(image)]);
    return kept ? kept->size : m_pixmaps[at(image)].size();
}

QByteArray ImageStore::original(int image) const
{
    const Kept *kept = keptFor(m_pixmaps[at(image)]);
    return kept && kept->state != PictureState::Undecodable ? pngOf(kept->image) : QByteArray();
}

qint64 ImageStore::pixelsBeside(int image) const
{
    qint64 pixels = 0;
    for (int other = 0; other < kNumProjectImages; ++other)
        pixels += other == image ? 0 : pixelsOf(m_pixmaps[at(other)].size());
    return pixels;
}

void ImageStore::keep(std::size_t image, const QPixmap &pixmap, const Kept &kept)
{
    m_pixmaps[image] = pixmap;
    m_kept[image] = kept;
    m_kept[image].key = pixmap.cacheKey();
}

// What does not fit as a whole takes little of the budget, or nothing.
void ImageStore::decode(std::size_t image, QByteArray encoded, qint64 mostPixels)
{
    const QByteArray png = pngOf(encoded);
    const QSize size = pngSize(png);
    const qint64 pixels = pixelsOf(size);
    if (pixels > mostPixels) {
        const QPixmap reduced =
            pixels > kMostPixelsReduced ? QPixmap() : reducedPng(png, kLongestPhotoEdge, mostPixels);
        const PictureState state = reduced.isNull() ? PictureState::TooLarge : PictureState::Reduced;
        keep(image, reduced.isNull() ? placeholder() : reduced, {0, state, size, std::move(encoded)});
        return;
    }
    const QPixmap pixmap = pixels > 0 ? fromPng(png) : QPixmap();
    if (pixmap.isNull()) {
        keep(image, placeholder(), {0, PictureState::Undecodable, QSize(), std::move(encoded)});
        return;
    }
    m_pixmaps[image] = pixmap;
    m_pngs[image].remember(pixmap, png);
}

ImageStore ImageStore::decoded(EncodedImages images, const std::function<void()> &pause, qint64 mostPixels)
{
    constexpr qint64 kReserve = qint64(kLongestPhotoEdge) * kLongestPhotoEdge; // for each of the pictures to come
    std::array<qint64, kNumProjectImages> pixels{};
    std::transform(images.begin(), images.end(), pixels.begin(),
                   [](const QByteArray &image) { return image.isEmpty() ? 0 : pixelsOf(pngSize(pngOf(image))); });
    std::array<std::size_t, kNumProjectImages> order{};
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return pixels[a] < pixels[b]; });
    ImageStore store;
    qint64 toCome = std::count_if(pixels.begin(), pixels.end(), [](qint64 count) { return count > 0; });
    for (const std::size_t image : order) {
        toCome -= pixels[image] > 0 ? 1 : 0;
        if (!images[image].isEmpty())
            store.decode(image, std::exchange(images[image], {}),
                         mostPixels - store.pixelsBeside(-1) - toCome * kReserve);
        pause();
    }
    return store;
}

bool ImageStore::isSame(int image, const ImageStore &other) const
{
    return m_pixmaps[at(image)].cacheKey() == other.m_pixmaps[at(image)].cacheKey();
}

void ImageStore::take(int image, const ImageStore &from)
{
    m_pixmaps[at(image)] = from.m_pixmaps[at(image)];
    m_pngs[at(image)] = from.m_pngs[at(image)];
    m_kept[at(image)] = from.m_kept[at(image)];
}

qint64 ImageStore::bytes(int image) const
{
    const QPixmap &pixmap = m_pixmaps[at(image)];
    return qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8 + m_pngs[at(image)].bytes();
}

QByteArray ImageStore::encodedOne(int image) const
{
    const QPixmap &pixmap = m_pixmaps[at(image)];
    const Kept *kept = keptFor(pixmap);
    return kept ? kept->image : m_pngs[at(image)].png(pixmap);
}

EncodedImages ImageStore::encoded(const Pixmaps &pixmaps, const std::function<void()> &pause)
{
    EncodedImages images;
    for (std::size_t image = 0; image < images.size(); ++image) {
        const Kept *kept = keptFor(pixmaps[image]);
        images[image] = kept ? kept->image : m_pngs[image].png(pixmaps[image]);
        pause();
    }
    return images;
}
