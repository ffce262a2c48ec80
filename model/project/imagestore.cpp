#include "model/project/imagestore.h"

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

EncodedImages ImageStore::encoded(const Pixmaps &pixmaps, const std::function<void()> &pause)
{
    EncodedImages pngs;
    for (std::size_t image = 0; image < pngs.size(); ++image) {
        pngs[image] = m_pngs[image].png(pixmaps[image]);
        pause();
    }
    return pngs;
}
