#pragma once

#include <QRect>
#include <QVector>
#include <QWidget>

/// The places of `count` tiles in an area: in rows that fill it, each tile as close to the shape of a display as
/// possible. The rows differ by one tile at most; the shorter ones come last and have wider tiles.
[[nodiscard]] QVector<QRect> tilePlaces(int count, const QSize &area, int gap);

/// Shows widgets side by side, or one of them alone. They become its children; before one is deleted,
/// setTiles() has to be called without it.
class TileGrid : public QWidget
{
    Q_OBJECT

public:
    explicit TileGrid(QWidget *parent = nullptr);

    void setTiles(const QVector<QWidget *> &tiles);
    [[nodiscard]] const QVector<QWidget *> &tiles() const { return m_tiles; }
    /// Null, or a widget that is not shown here: shows all.
    void setEnlarged(QWidget *tile);
    [[nodiscard]] QWidget *enlarged() const { return m_enlarged; }
    /// The neighbour in the direction of an arrow key; null at the edge.
    [[nodiscard]] QWidget *neighbour(const QWidget *tile, int key) const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();
    void keepReadable();

    QVector<QWidget *> m_tiles;
    QWidget *m_enlarged = nullptr;
};
