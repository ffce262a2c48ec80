#include "view/project/projectimages.h"

#include "model/model.h"
#include "view/project/imagepreview.h"
#include "view/project/imagetile.h"

#include <QGridLayout>

namespace {

constexpr int kColumns = 6;

struct Place
{
    int row;
    int column;
    int columns;
};

/// Two wide ones above three: most photos are wider than high.
Place placeOf(int image)
{
    return image < 2 ? Place{0, 3 * image, 3} : Place{1, 2 * (image - 2), 2};
}

} // namespace

ProjectImages::ProjectImages(QWidget *parent)
    : QWidget(parent)
{
    static_assert(Model::kNumImages == std::tuple_size<decltype(m_tiles)>::value);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0); // the cards keep room for their shadows
    for (int column = 0; column < kColumns; ++column)
        grid->setColumnStretch(column, 1);
    for (int image = 0; image < Model::kNumImages; ++image)
        addTile(image);
    placeTiles();
}

void ProjectImages::setNarrow(bool narrow)
{
    if (narrow == m_narrow)
        return;
    m_narrow = narrow;
    for (ImageTile *tile : m_tiles)
        layout()->removeWidget(tile);
    placeTiles();
}

void ProjectImages::placeTiles()
{
    auto *grid = static_cast<QGridLayout *>(layout());
    for (int image = 0; image < Model::kNumImages; ++image) {
        const Place place = m_narrow ? Place{image, 0, kColumns} : placeOf(image);
        grid->addWidget(m_tiles[static_cast<std::size_t>(image)], place.row, place.column, 1, place.columns);
        grid->setRowStretch(image, m_narrow || image < 2 ? 1 : 0);
    }
}

void ProjectImages::addTile(int image)
{
    auto *tile = new ImageTile(image + 1, this);
    m_tiles[static_cast<std::size_t>(image)] = tile;
    connect(tile, &ImageTile::chooseRequested, this, [this, image] { emit chooseClicked(image); });
    connect(tile, &ImageTile::deleteRequested, this, [this, image] { emit deleteClicked(image); });
    connect(tile, &ImageTile::saveRequested, this, [this, image] { emit saveClicked(image); });
    connect(tile, &ImageTile::enlargeRequested, this, [this, image] { enlarge(image); });
    connect(tile, &ImageTile::filesGiven, this,
            [this, image](const QStringList &files) { emit filesGiven(image, files); });
    connect(tile, &ImageTile::imageGiven, this,
            [this, image](const QImage &picture) { emit imageGiven(image, picture); });
}

void ProjectImages::showFrom(const Model &model)
{
    for (int image = 0; image < Model::kNumImages; ++image)
        m_tiles[static_cast<std::size_t>(image)]->setPicture(model.image(image), model.images().state(image),
                                                             model.images().size(image));
}

void ProjectImages::enlarge(int image)
{
    const QPixmap picture = m_tiles[static_cast<std::size_t>(image)]->picture();
    auto *preview = new ImagePreview(tr("Bild %1").arg(image + 1), picture, window());
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->open();
    emit enlarged(image);
}
