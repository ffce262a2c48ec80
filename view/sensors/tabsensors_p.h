#pragma once

#include "view/sensors/livevalues.h"
#include "view/sensors/sensorchoices.h"
#include "view/sensors/sensorlist.h"
#include "view/sensors/sensorreading.h"
#include "view/sensors/tabsensors.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QVector>

class QAction;
class QBoxLayout;
class QKeyEvent;
class QLabel;
class QModelIndex;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QTreeView;
class SensorTile;
class SensorTreeModel;
class TileGrid;

struct TabSensors::Private
{
    explicit Private(TabSensors *tab);

    TabSensors *q;
    Model *model = nullptr;
    SensorChoices choices;
    SensorTreeModel *sensors = nullptr;

    // --- Values ---
    LiveValues live;
    std::array<std::optional<double>, kNumSensors> recorded; ///< shown until something live comes
    std::array<std::optional<double>, kNumSensors> readOut;  ///< what all digits say
    QElapsedTimer elapsed;
    std::function<qint64()> now;
    QTimer repaintTimer; ///< bundles samples; runs only in sight
    QTimer statusTimer;  ///< runs only in sight and while values are fresh

    // --- Widgets ---
    QSplitter *splitter = nullptr;
    QWidget *side = nullptr;
    QTreeView *tree = nullptr;
    int valueWidth = 0; ///< pixels of the tree's column, where there is room for it
    int unitWidth = 0;
    QPushButton *editButton = nullptr;
    QPushButton *resetButton = nullptr;
    QAction *renameAction = nullptr;
    QAction *editAction = nullptr;
    QAction *resetAction = nullptr;
    QStackedWidget *pages = nullptr;
    QWidget *tilePage = nullptr;
    TileGrid *grid = nullptr;
    QLabel *hint = nullptr;
    QVector<SensorTile *> tiles; ///< one a sensor; null for one that is not shown

    // --- Building ---
    void build();
    void createTimers();
    [[nodiscard]] QWidget *createSide();
    void createTree();
    void createActions();
    [[nodiscard]] QWidget *createPages();
    void connectTree();
    void sizeColumns();
    void restoreWidth();
    void fitToWidth(int width);
    void fitSide() const;
    void retranslateUi();

    // --- Which sensors ---
    void showSensors(const SensorList &list);
    void showChecks();
    void showTiles();
    void fitTile(int index);
    void orderTabs() const;
    [[nodiscard]] SensorTile *createTile(int index);
    void showHint();
    [[nodiscard]] QString hintText() const;
    void enlarge(SensorTile *tile);

    // --- Values ---
    void followLink();
    [[nodiscard]] bool isFresh() const;
    [[nodiscard]] SensorReading readingOf(const SensorInfo &sensor) const;
    [[nodiscard]] std::optional<double> valueOf(int channel) const;
    void scheduleTiles();
    void refreshTiles();
    void refreshTree();
    void readOutAnew();
    void refresh();
    void checkFreshness();
    void resetHeld(int index);
    void resetAll();

    // --- Editing ---
    [[nodiscard]] int currentSensor() const;
    void showEditable();
    [[nodiscard]] bool handleTreeKey(const QKeyEvent &event);
    void rename(int index, const QString &name);
    void renameInPlace();
    void edit(int index);
    void applyEdit(const SensorInfo &before, const SensorInfo &after);
};
