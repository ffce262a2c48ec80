#include "app/theme.h"
#include "kit/small/shadowframe.h"
#include "view/common/tabstyle.h"
#include "view/sensors/sensortreemodel.h"
#include "view/sensors/tabsensors_p.h"
#include "view/sensors/tilegrid.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int kDefaultSideWidth = 440; // pixels
constexpr int kNarrowestSide = 240;
constexpr int kNarrowestPage = 700;
constexpr int kHandleWidth = 8;
constexpr int kEdge = 12;
constexpr int kStatusColumnWidth = 40;
constexpr int kNarrowestName = 180; // with check mark and swatch
constexpr int kNarrowestButtons = 300;

QString treeSheet()
{
    return QStringLiteral("QTreeView {border: 1px solid #CFCFCF; border-radius: 4px; outline: 0px;}"
                          "QTreeView:focus {border: 2px solid %1;}"
                          "QTreeView::item:selected {background: #D6E6F1; color: black;}"
                          "QTreeView::indicator {width: 22px; height: 22px;}")
        .arg(theme::colorPrimary);
}

} // namespace

void TabSensors::Private::build()
{
    createTimers();
    sensors = new SensorTreeModel(q);
    splitter = new QSplitter(q);
    splitter->setObjectName(QStringLiteral("sensorSplitter"));
    splitter->setHandleWidth(kHandleWidth);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(createSide());
    splitter->addWidget(createPages());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    auto *layout = new QHBoxLayout(q);
    // The cards bring their shadows.
    layout->setContentsMargins(kEdge, kEdge - ShadowFrame::kShadow, kEdge - ShadowFrame::kShadow,
                               kEdge - ShadowFrame::kShadow);
    layout->addWidget(splitter);
    restoreWidth();
    connectTree();
}

QWidget *TabSensors::Private::createSide()
{
    side = new QWidget(splitter);
    side->setMinimumWidth(kNarrowestSide);
    createTree();
    createActions();
    editButton = new QPushButton(side);
    editButton->setObjectName(QStringLiteral("buttonEditSensor"));
    resetButton = new QPushButton(side);
    resetButton->setObjectName(QStringLiteral("buttonResetAll"));
    for (QPushButton *button : {editButton, resetButton})
        button->setStyleSheet(QStringLiteral("QPushButton {padding: 0px 8px;}"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(editButton, 1);
    buttons->addWidget(resetButton, 1);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, ShadowFrame::kShadow, 0, ShadowFrame::kShadow);
    column->addWidget(tree, 1);
    column->addLayout(buttons);
    return side;
}

void TabSensors::Private::createTree()
{
    tree = new QTreeView(side);
    tree->setObjectName(QStringLiteral("treeSensors"));
    tree->setModel(sensors);
    tree->setIconSize(SensorTreeModel::iconSize());
    tree->setUniformRowHeights(true);
    tree->setEditTriggers(QAbstractItemView::DoubleClicked);
    tree->setExpandsOnDoubleClick(false);
    tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    tree->setRootIsDecorated(false); // groups stay open
    tree->setItemsExpandable(false);
    tree->setIndentation(14);
    tree->setStyleSheet(treeSheet());
    tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    tree->installEventFilter(q);
    sizeColumns();
}

void TabSensors::Private::sizeColumns()
{
    QHeaderView *header = tree->header();
    header->setStretchLastSection(false);
    header->setSectionsMovable(false);
    header->setMinimumSectionSize(kStatusColumnWidth);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionResizeMode(SensorTreeModel::NameColumn, QHeaderView::Stretch);
    QFont font = tree->font();
    font.setPixelSize(18);
    const QFontMetrics metrics(font);
    valueWidth = metrics.horizontalAdvance(QStringLiteral("-8888,88")) + 10;
    unitWidth = metrics.horizontalAdvance(QStringLiteral("Einheit")) + 8;
    header->resizeSection(SensorTreeModel::ValueColumn, valueWidth);
    header->resizeSection(SensorTreeModel::UnitColumn, unitWidth);
    header->resizeSection(SensorTreeModel::StatusColumn, kStatusColumnWidth);
}

/// Where it is narrow the names come first: the tiles show the values too, and begin their held values anew.
void TabSensors::Private::fitSide() const
{
    const int room = tree->width() - kNarrowestName - kStatusColumnWidth;
    tree->setColumnHidden(SensorTreeModel::ValueColumn, room < valueWidth);
    tree->setColumnHidden(SensorTreeModel::UnitColumn, room < valueWidth + unitWidth);
    resetButton->setVisible(tree->width() >= kNarrowestButtons);
}

void TabSensors::Private::createActions()
{
    renameAction = new QAction(tree);
    editAction = new QAction(tree);
    resetAction = new QAction(tree);
    tree->addActions({renameAction, editAction, resetAction});
}

QWidget *TabSensors::Private::createPages()
{
    grid = new TileGrid;
    auto *scroll = new QScrollArea;
    scroll->setWidget(grid);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    grid->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    tilePage = scroll;
    hint = new QLabel;
    hint->setObjectName(QStringLiteral("labelSensorHint"));
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setStyleSheet(QStringLiteral("QLabel {font-size: 22px; color: %1;}").arg(theme::colorDark));
    pages = new QStackedWidget(splitter);
    pages->addWidget(tilePage);
    pages->addWidget(hint);
    return pages;
}

void TabSensors::Private::restoreWidth()
{
    const int kept = SensorChoices::treeWidth();
    const int width = kept >= kNarrowestSide ? kept : kDefaultSideWidth;
    splitter->setSizes({width, 3 * width});
    connect(splitter, &QSplitter::splitterMoved, q, [this] {
        if (splitter->orientation() == Qt::Horizontal)
            SensorChoices::setTreeWidth(splitter->sizes().constFirst());
    });
}

/// Side by side there must be room for the tree and one tile.
void TabSensors::Private::fitToWidth(int width)
{
    const Qt::Orientation fitting = width < kNarrowestPage ? Qt::Vertical : Qt::Horizontal;
    if (splitter->orientation() == fitting)
        return;
    splitter->setOrientation(fitting);
    side->setMinimumWidth(fitting == Qt::Horizontal ? kNarrowestSide : 0);
}

void TabSensors::Private::connectTree()
{
    connect(sensors, &SensorTreeModel::modelReset, tree, &QTreeView::expandAll);
    connect(sensors, &SensorTreeModel::modelReset, q, [this] { showEditable(); });
    connect(sensors, &SensorTreeModel::shownChanged, q, [this](int index, bool shown) {
        choices.setShown(sensors->sensors().sensors.at(index).key, shown);
        showTiles();
    });
    connect(sensors, &SensorTreeModel::renamed, q, [this](int index, const QString &name) { rename(index, name); });
    connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, q, [this] { showEditable(); });
    connect(tree, &QTreeView::doubleClicked, q, [this](const QModelIndex &index) {
        if (index.column() != SensorTreeModel::NameColumn)
            edit(sensors->sensorAt(index));
    });
    connect(renameAction, &QAction::triggered, q, [this] { renameInPlace(); });
    connect(editAction, &QAction::triggered, q, [this] { edit(currentSensor()); });
    connect(resetAction, &QAction::triggered, q, [this] { resetHeld(currentSensor()); });
    connect(editButton, &QPushButton::clicked, q, [this] { edit(currentSensor()); });
    connect(resetButton, &QPushButton::clicked, q, [this] { resetAll(); });
    showEditable();
}

void TabSensors::Private::retranslateUi()
{
    tree->setAccessibleName(TabSensors::tr("Sensoren"));
    editButton->setText(TabSensors::tr("&Bearbeiten..."));
    editButton->setToolTip(TabSensors::tr("Name, Farbe und Grenzen des gewählten Sensors (Eingabetaste)"));
    resetButton->setText(TabSensors::tr("&Min/Max neu"));
    resetButton->setToolTip(TabSensors::tr("Minimum und Maximum aller Sensoren neu beginnen"));
    renameAction->setText(TabSensors::tr("Umbenennen (F2)"));
    editAction->setText(TabSensors::tr("Bearbeiten..."));
    resetAction->setText(TabSensors::tr("Minimum und Maximum neu beginnen"));
    sensors->retranslate();
    showHint();
}
