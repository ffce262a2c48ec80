#include "plots/evaluation/overlay/overlaytable.h"

#include "plots/evaluation/overlay/colordelegate.h"
#include "plots/evaluation/overlay/overlaytablemodel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSortFilterProxyModel>

namespace {

constexpr int kNarrowestTable = 300;  // pixels
constexpr int kNumberWidth = 82;      // pixels for the title and the arrow beside it
constexpr int kTimeWidth = 180;       // pixels of a time stamp
constexpr int kDeviationWidth = 118;  // pixels for the title and the arrow beside it
constexpr int kSmallColumnWidth = 36; // pixels of the columns without a title

} // namespace

OverlayTable::OverlayTable(QWidget *parent)
    : ShotTable(QStringLiteral("tableOverlay"), parent)
    , m_rows(new OverlayTableModel(this))
    , m_sorted(new QSortFilterProxyModel(this))
{
    m_sorted->setSourceModel(m_rows);
    m_sorted->setSortRole(OverlayTableModel::kSortRole);
    setModel(m_sorted);
    setItemDelegateForColumn(OverlayTableModel::Color, new ColorDelegate(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setMinimumWidth(kNarrowestTable);
    setSortingEnabled(true);
    sortByColumn(OverlayTableModel::Number, Qt::AscendingOrder);
    setColumnWidths();
    retranslateUi();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &OverlayTable::choiceChanged);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, &OverlayTable::choiceChanged);
    connect(m_rows, &OverlayTableModel::shownEdited, this, &OverlayTable::shownEdited);
    connect(m_rows, &OverlayTableModel::colorEdited, this, &OverlayTable::colorEdited);
    connect(m_rows, &OverlayTableModel::labelEdited, this, &OverlayTable::labelEdited);
}

void OverlayTable::setColumnWidths()
{
    QHeaderView *header = horizontalHeader();
    header->setStyleSheet(QStringLiteral("font-size: 16px;"));
    header->setMinimumSectionSize(kSmallColumnWidth);
    const std::initializer_list<std::pair<int, int>> fixed{{OverlayTableModel::Color, kSmallColumnWidth},
                                                           {OverlayTableModel::Shown, kSmallColumnWidth},
                                                           {OverlayTableModel::Number, kNumberWidth},
                                                           {OverlayTableModel::Timestamp, kTimeWidth},
                                                           {OverlayTableModel::Deviation, kDeviationWidth}};
    for (const auto &[column, width] : fixed) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
        header->resizeSection(column, width);
    }
    header->setSectionResizeMode(OverlayTableModel::Label, QHeaderView::Stretch);
}

void OverlayTable::setRows(std::vector<OverlayRow> rows)
{
    m_rows->setRows(std::move(rows));
}

int OverlayTable::currentShot() const
{
    return m_sorted->mapToSource(currentIndex()).row();
}

std::vector<bool> OverlayTable::selectedShots(int count) const
{
    std::vector<bool> selected(static_cast<std::size_t>(count));
    // Ranges, as a list of indices has one for every cell.
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const int shot = m_sorted->mapToSource(m_sorted->index(row, 0)).row();
            if (shot >= 0 && shot < count)
                selected[static_cast<std::size_t>(shot)] = true;
        }
    }
    return selected;
}

void OverlayTable::forgetSelection()
{
    clearSelection();
    setCurrentIndex({});
}

// The table would only toggle the current cell, and only if that is the one with the tick.
void OverlayTable::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space)
        emit toggleWanted();
    else
        ShotTable::keyPressEvent(event);
}

void OverlayTable::retranslateUi()
{
    setAccessibleName(tr("Schüsse der Überlagerung"));
    m_rows->retranslate();
}
