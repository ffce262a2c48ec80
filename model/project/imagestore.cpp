#include "model/project/imagestore.h"

#include "model/arrayindex.h"

#include <utility>

ImageStore ImageStore::decoded(EncodedImages pngs, const std::function<void()> &pause)
{
    ImageStore store;
    for (std::size_t image = 0; image < pngs.size(); ++image) {
        store.m_pixmaps[image] = fromPng(pngs[image]);
        store.m_pngs[image].remember(store.m_pixmaps[image], std::move(pngs[image]));
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
}

qint64 ImageStore::bytes(int image) const
{
    const QPixmap &pixmap = m_pixmaps[at(image)];
    return qint64(pixmap.width()) * pixmap.height() * pixmap.depth() / 8 + m_pngs[at(image)].bytes();
}

EncodedImages ImageStore::encoded(const Pixmaps &pixmaps, const std::function<void()> &pause)
{
    EncodedImages pngs;
    for (std::size_t image = 0; image < pngs.size(); ++image) {
        pngs[image] = m_pngs[image].png(pixmaps[image]);
        pause();
    }
    return pngs;
}
