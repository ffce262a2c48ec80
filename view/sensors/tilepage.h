#pragma once

#include "view/sensors/sensorchoices.h"
#include "view/sensors/sensorlist.h"
#include "view/sensors/sensorreading.h"

#include <QMap>
#include <QStackedWidget>

class QLabel;
class SensorTile;
class TileGrid;

/// The tiles of the tab "Sensoren": one for each sensor that is to be shown, or one of them enlarged, or a hint
/// instead. It knows sensors by their index; what the user wants goes out as a signal.
class TilePage : public QStackedWidget
{
    Q_OBJECT

public:
    /// What a tile shows.
    struct Content
    {
        int index = 0;
        SensorInfo sensor;
        DisplayKind kind = DisplayKind::Round;
        SensorReading reading;
    };

    explicit TilePage(QWidget *parent = nullptr);

    /// Shows exactly these, in their order. A tile that is already there is updated, so that it stays enlarged or
    /// focused.
    void setTiles(const QVector<Content> &contents);
    [[nodiscard]] bool hasTiles() const { return !m_tiles.isEmpty(); }
    /// Shows a text instead of the tiles; the tiles for an empty text.
    void setHint(const QString &text);
    /// Does nothing for a sensor without a tile, like the next two.
    void setReading(int index, const SensorReading &reading);
    /// Updates the text for screen readers, which is not necessary with every reading.
    void describeReading(int index);
    void setKind(int index, DisplayKind kind);
    /// Shows all tiles again; false if none was enlarged.
    bool shrink();

signals:
    void kindChosen(int index, DisplayKind kind);
    /// What the sensor held is to be forgotten.
    void resetRequested(int index);
    /// One of the tiles was enlarged, or all are shown again.
    void enlargedChanged(bool isEnlarged);

private:
    [[nodiscard]] SensorTile *createTile(int index);
    [[nodiscard]] SensorTile *enlarged() const;
    void removeTilesBut(const QVector<Content> &contents);
    void orderTabs() const;
    void enlarge(SensorTile *tile);

    TileGrid *m_grid;
    QWidget *m_tilePage = nullptr;
    QLabel *m_hint = nullptr;
    QMap<int, SensorTile *> m_tiles; ///< by the index of the sensor
};
