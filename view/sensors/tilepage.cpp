#include "view/sensors/tilepage.h"

#include "app/theme.h"
#include "view/sensors/sensortile.h"
#include "view/sensors/tilegrid.h"

#include <QLabel>
#include <QScrollArea>

#include <algorithm>

TilePage::TilePage(QWidget *parent)
    : QStackedWidget(parent)
    , m_grid(new TileGrid)
{
    auto *scroll = new QScrollArea;
    scroll->setWidget(m_grid);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus); // the Tab key skips the area itself
    m_grid->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    m_tilePage = scroll;
    m_hint = new QLabel;
    m_hint->setObjectName(QStringLiteral("labelSensorHint"));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setStyleSheet(QStringLiteral("QLabel {font-size: 22px; color: %1;}").arg(theme::colorDark));
    addWidget(m_tilePage);
    addWidget(m_hint);
}

void TilePage::setTiles(const QVector<Content> &contents)
{
    QVector<QWidget *> shown;
    for (const Content &content : contents) {
        SensorTile *&tile = m_tiles[content.index];
        if (!tile)
            tile = createTile(content.index);
        tile->setSensor(content.sensor);
        tile->setKind(content.kind);
        tile->setReading(content.reading);
        tile->describeReading();
        shown.append(tile);
    }
    m_grid->setTiles(shown);
    removeTilesBut(contents);
    orderTabs();
    enlarge(enlarged()); // null if its tile is gone
}

void TilePage::removeTilesBut(const QVector<Content> &contents)
{
    const QList<int> indices = m_tiles.keys();
    for (const int index : indices) {
        const auto isIt = [index](const Content &content) { return content.index == index; };
        if (std::none_of(contents.cbegin(), contents.cend(), isIt))
            m_tiles.take(index)->deleteLater(); // the call may come from one of its buttons
    }
}

SensorTile *TilePage::createTile(int index)
{
    auto *tile = new SensorTile(m_grid);
    tile->setObjectName(QStringLiteral("sensorTile%1").arg(index + 1));
    connect(tile, &SensorTile::kindChosen, this, [this, index](DisplayKind kind) { emit kindChosen(index, kind); });
    connect(tile, &SensorTile::resetRequested, this, [this, index] { emit resetRequested(index); });
    connect(tile, &SensorTile::enlargeToggled, this, [this, tile] { enlarge(enlarged() == tile ? nullptr : tile); });
    connect(tile, &SensorTile::focusMoved, this, [this, tile](int key) {
        if (QWidget *next = m_grid->neighbour(tile, key))
            next->setFocus(Qt::TabFocusReason);
    });
    return tile;
}

void TilePage::orderTabs() const
{
    QWidget *before = nullptr;
    for (QWidget *tile : m_grid->tiles()) {
        const QVector<QWidget *> order = static_cast<SensorTile *>(tile)->tabOrder();
        for (QWidget *next : order) {
            if (before)
                setTabOrder(before, next);
            before = next;
        }
    }
}

void TilePage::setHint(const QString &text)
{
    m_hint->setText(text);
    setCurrentWidget(text.isEmpty() ? m_tilePage : m_hint);
}

void TilePage::setReading(int index, const SensorReading &reading)
{
    if (SensorTile *tile = m_tiles.value(index))
        tile->setReading(reading);
}

void TilePage::describeReading(int index)
{
    if (SensorTile *tile = m_tiles.value(index))
        tile->describeReading();
}

void TilePage::setKind(int index, DisplayKind kind)
{
    if (SensorTile *tile = m_tiles.value(index))
        tile->setKind(kind);
}

// --- The enlarged tile -----------------------------------------------------------------------------------------

SensorTile *TilePage::enlarged() const
{
    return static_cast<SensorTile *>(m_grid->enlarged());
}

bool TilePage::shrink()
{
    if (!enlarged())
        return false;
    enlarge(nullptr);
    return true;
}

/// Null: shows all tiles.
void TilePage::enlarge(SensorTile *tile)
{
    SensorTile *before = enlarged();
    if (before && before != tile)
        before->setEnlarged(false);
    m_grid->setEnlarged(tile);
    emit enlargedChanged(tile != nullptr);
    if (tile)
        tile->setEnlarged(true);
    // The buttons that had the focus may be hidden now, and Escape has to reach the tab.
    if (tile && before != tile)
        tile->setFocus(Qt::OtherFocusReason);
}
