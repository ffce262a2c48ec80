#include "view/sensors/sensorside.h"

#include "app/theme.h"
#include "kit/small/shadowframe.h"
#include "view/sensors/sensortreemodel.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int kStatusColumnWidth = 40; // pixels
constexpr int kNarrowestName = 180;    // with check mark and swatch
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

SensorSide::SensorSide(QWidget *parent)
    : QWidget(parent)
    , m_sensors(new SensorTreeModel(this))
{
    setMinimumWidth(kNarrowest);
    createTree();
    createActions();
    createButtons();
    layOut();
    retranslateUi();
    showEditable();
}

// --- Building --------------------------------------------------------------------------------------------------

void SensorSide::createTree()
{
    m_tree = new QTreeView(this);
    m_tree->setObjectName(QStringLiteral("treeSensors"));
    m_tree->setModel(m_sensors);
    m_tree->setIconSize(SensorTreeModel::iconSize());
    m_tree->setUniformRowHeights(true);
    // F2 is handled by handleTreeKey(), which renames from any column.
    m_tree->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_tree->setExpandsOnDoubleClick(false);
    m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tree->setRootIsDecorated(false); // groups stay open
    m_tree->setItemsExpandable(false);
    m_tree->setIndentation(14);
    m_tree->setStyleSheet(treeSheet());
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_tree->installEventFilter(this);
    sizeColumns();
    connect(m_sensors, &SensorTreeModel::modelReset, m_tree, &QTreeView::expandAll);
    connect(m_sensors, &SensorTreeModel::modelReset, this, &SensorSide::showEditable);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this, &SensorSide::showEditable);
    connect(m_tree, &QTreeView::doubleClicked, this, [this](const QModelIndex &index) {
        // A double click on the name edits it in place.
        if (index.column() != SensorTreeModel::NameColumn && m_sensors->sensorAt(index) >= 0)
            emit editRequested(m_sensors->sensorAt(index));
    });
}

void SensorSide::sizeColumns()
{
    QHeaderView *header = m_tree->header();
    header->setStretchLastSection(false);
    header->setSectionsMovable(false);
    header->setMinimumSectionSize(kStatusColumnWidth);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionResizeMode(SensorTreeModel::NameColumn, QHeaderView::Stretch);
    // The font of the style sheet, which the tree does not have yet.
    QFont font = m_tree->font();
    font.setPixelSize(18);
    const QFontMetrics metrics(font);
    m_valueWidth = metrics.horizontalAdvance(QStringLiteral("-8888,88")) + 10;
    m_unitWidth = metrics.horizontalAdvance(QStringLiteral("Einheit")) + 8;
    header->resizeSection(SensorTreeModel::ValueColumn, m_valueWidth);
    header->resizeSection(SensorTreeModel::UnitColumn, m_unitWidth);
    header->resizeSection(SensorTreeModel::StatusColumn, kStatusColumnWidth);
}

void SensorSide::createActions()
{
    m_renameAction = new QAction(m_tree);
    m_editAction = new QAction(m_tree);
    m_resetAction = new QAction(m_tree);
    m_tree->addActions({m_renameAction, m_editAction, m_resetAction});
    connect(m_renameAction, &QAction::triggered, this, &SensorSide::renameInPlace);
    connect(m_editAction, &QAction::triggered, this, &SensorSide::requestEdit);
    connect(m_resetAction, &QAction::triggered, this, [this] {
        if (currentSensor() >= 0)
            emit resetRequested(currentSensor());
    });
}

void SensorSide::createButtons()
{
    m_editButton = new QPushButton(this);
    m_editButton->setObjectName(QStringLiteral("buttonEditSensor"));
    m_resetButton = new QPushButton(this);
    m_resetButton->setObjectName(QStringLiteral("buttonResetAll"));
    for (QPushButton *button : {m_editButton, m_resetButton})
        button->setStyleSheet(QStringLiteral("QPushButton {padding: 0px 8px;}"));
    connect(m_editButton, &QPushButton::clicked, this, &SensorSide::requestEdit);
    connect(m_resetButton, &QPushButton::clicked, this, &SensorSide::resetAllRequested);
}

void SensorSide::layOut()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_editButton, 1);
    buttons->addWidget(m_resetButton, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, ShadowFrame::kShadow, 0, ShadowFrame::kShadow); // in line with the cards of the tiles
    column->addWidget(m_tree, 1);
    column->addLayout(buttons);
}

void SensorSide::retranslateUi()
{
    m_tree->setAccessibleName(tr("Sensoren"));
    m_editButton->setText(tr("&Bearbeiten..."));
    m_editButton->setToolTip(tr("Name, Farbe und Grenzen des gewählten Sensors (Eingabetaste)"));
    m_resetButton->setText(tr("&Min/Max neu"));
    m_resetButton->setToolTip(tr("Minimum und Maximum aller Sensoren neu beginnen"));
    m_renameAction->setText(tr("Umbenennen (F2)"));
    m_editAction->setText(tr("Bearbeiten..."));
    m_resetAction->setText(tr("Minimum und Maximum neu beginnen"));
    m_sensors->retranslate();
}

/// In a narrow tree the names come first: the tiles show the values too, and can reset what they hold.
void SensorSide::fitColumns()
{
    const int room = m_tree->width() - kNarrowestName - kStatusColumnWidth;
    m_tree->setColumnHidden(SensorTreeModel::ValueColumn, room < m_valueWidth);
    m_tree->setColumnHidden(SensorTreeModel::UnitColumn, room < m_valueWidth + m_unitWidth);
    m_resetButton->setVisible(m_tree->width() >= kNarrowestButtons);
}

// --- What the user does ----------------------------------------------------------------------------------------

int SensorSide::currentSensor() const
{
    return m_sensors->sensorAt(m_tree->currentIndex());
}

void SensorSide::showEditable()
{
    const int sensor = currentSensor();
    const bool isSensor = sensor >= 0;
    m_editButton->setEnabled(isSensor);
    m_editAction->setEnabled(isSensor);
    m_resetAction->setEnabled(isSensor);
    m_renameAction->setEnabled(isSensor && m_sensors->sensors().sensors.at(sensor).canRename());
}

bool SensorSide::handleTreeKey(const QKeyEvent &event)
{
    const QModelIndex current = m_tree->currentIndex();
    const QWidget *focus = QApplication::focusWidget();
    // The editor of a name passes on the key that ends it.
    const bool isEditing = focus && m_tree->viewport()->isAncestorOf(focus);
    if (!current.isValid() || isEditing || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Space: // in any column
        toggleCheck(current.siblingAtColumn(SensorTreeModel::NameColumn));
        return true;
    case Qt::Key_F2:
        renameInPlace();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        requestEdit();
        return true;
    default:
        return false;
    }
}

void SensorSide::toggleCheck(const QModelIndex &name)
{
    const bool isChecked = m_sensors->data(name, Qt::CheckStateRole) == Qt::Checked;
    (void)m_sensors->setData(name, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole); // always possible
}

void SensorSide::renameInPlace()
{
    const int sensor = currentSensor();
    if (sensor < 0 || !m_sensors->sensors().sensors.at(sensor).canRename())
        return;
    const QModelIndex name = m_sensors->indexOf(sensor);
    m_tree->setCurrentIndex(name);
    m_tree->edit(name);
}

void SensorSide::requestEdit()
{
    if (currentSensor() >= 0)
        emit editRequested(currentSensor());
}

// --- Events ----------------------------------------------------------------------------------------------------

bool SensorSide::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tree && event->type() == QEvent::Resize)
        fitColumns();
    if (watched == m_tree && event->type() == QEvent::KeyPress && handleTreeKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

void SensorSide::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
