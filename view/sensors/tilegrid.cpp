#include "view/sensors/tilegrid.h"

#include <QResizeEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kGap = 0; // pixels; the shadows of the cards separate them
constexpr int kLowestTile = 190;
constexpr int kNarrowestTile = 250;
constexpr double kShape = 1.35; // width to height ratio of a display

int rowsFor(int count, int columns)
{
    return (count + columns - 1) / columns;
}

/// How large a display with the ideal shape gets in a tile.
double fitOf(int count, int columns, const QSize &area)
{
    const double width = static_cast<double>(area.width()) / columns;
    const double height = static_cast<double>(area.height()) / rowsFor(count, columns);
    return std::min(width / kShape, height);
}

int bestColumns(int count, const QSize &area)
{
    int best = 1;
    for (int columns = 2; columns <= count; ++columns) {
        if (fitOf(count, columns, area) > fitOf(count, best, area) * 1.0001)
            best = columns;
    }
    return best;
}

/// Begin and length of part `index` of a length that is divided into `parts` with gaps between them.
QPair<int, int> part(int index, int parts, int length, int gap)
{
    const int begin = static_cast<int>(static_cast<qint64>(index) * (length + gap) / parts);
    const int end = static_cast<int>(static_cast<qint64>(index + 1) * (length + gap) / parts) - gap;
    return {begin, std::max(1, end - begin)};
}

/// The way from one tile to another along the direction of an arrow key, in pixels.
struct Way
{
    int ahead;
    int aside;
};

Way wayAlong(int key, QPoint distance)
{
    switch (key) {
    case Qt::Key_Left:
        return {-distance.x(), std::abs(distance.y())};
    case Qt::Key_Right:
        return {distance.x(), std::abs(distance.y())};
    case Qt::Key_Up:
        return {-distance.y(), std::abs(distance.x())};
    default:
        return {distance.y(), std::abs(distance.x())};
    }
}

} // namespace

QVector<QRect> tilePlaces(int count, const QSize &area, int gap)
{
    QVector<QRect> places;
    if (count <= 0)
        return places;
    const int rows = rowsFor(count, bestColumns(count, area));
    const int longRows = count % rows == 0 ? rows : count % rows;
    for (int row = 0; row < rows; ++row) {
        const int columns = count / rows + (count % rows != 0 && row < longRows ? 1 : 0);
        const auto vertical = part(row, rows, area.height(), gap);
        for (int column = 0; column < columns; ++column) {
            const auto horizontal = part(column, columns, area.width(), gap);
            places.append({horizontal.first, vertical.first, horizontal.second, vertical.second});
        }
    }
    return places;
}

TileGrid::TileGrid(QWidget *parent)
    : QWidget(parent)
{}

void TileGrid::setTiles(const QVector<QWidget *> &tiles)
{
    for (QWidget *tile : qAsConst(m_tiles)) {
        if (!tiles.contains(tile))
            tile->hide();
    }
    m_tiles = tiles;
    if (!m_tiles.contains(m_enlarged))
        m_enlarged = nullptr;
    for (QWidget *tile : qAsConst(m_tiles))
        tile->setParent(this);
    keepReadable();
    place();
}

void TileGrid::setEnlarged(QWidget *tile)
{
    m_enlarged = m_tiles.contains(tile) ? tile : nullptr;
    keepReadable();
    place();
}

/// With too many tiles for the page the grid becomes taller than its scroll area.
void TileGrid::keepReadable()
{
    const int shown = m_enlarged ? 1 : m_tiles.size();
    const int columns = std::max(1, (width() + kGap) / (kNarrowestTile + kGap));
    const int height = std::max(1, rowsFor(shown, columns)) * (kLowestTile + kGap) - kGap;
    if (minimumHeight() != height)
        setMinimumHeight(height);
}

void TileGrid::place()
{
    const QVector<QRect> places = tilePlaces(m_tiles.size(), size(), kGap);
    for (int i = 0; i < m_tiles.size(); ++i) {
        QWidget *tile = m_tiles.at(i);
        tile->setGeometry(tile == m_enlarged ? rect() : places.at(i));
        tile->setVisible(!m_enlarged || tile == m_enlarged);
    }
}

QWidget *TileGrid::neighbour(const QWidget *tile, int key) const
{
    const QRect own = tile->geometry();
    QWidget *nearest = nullptr;
    int nearestDistance = 0;
    for (QWidget *other : m_tiles) {
        const Way way = wayAlong(key, other->geometry().center() - own.center());
        const int distance = way.ahead + 3 * way.aside;
        if (other == tile || other->isHidden() || way.ahead <= 0 || (nearest && distance >= nearestDistance))
            continue;
        nearest = other;
        nearestDistance = distance;
    }
    return nearest;
}

void TileGrid::resizeEvent(QResizeEvent *event)
{
    keepReadable();
    place();
    QWidget::resizeEvent(event);
}
