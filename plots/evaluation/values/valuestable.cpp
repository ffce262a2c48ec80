#include "plots/evaluation/values/valuestable.h"

#include "plots/common/logging.h"

#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int kNarrowestColumn = 60; // pixels
constexpr int kTimeWidth = 180;      // pixels of a time stamp
constexpr int kMeasuredRows = 40;    // for the width of a column; in a hidden table Qt would measure all rows

} // namespace

ValuesTable::ValuesTable(QWidget *parent)
    : ShotTable(QStringLiteral("tableValues"), parent)
    , m_rows(new QuantityTableModel(this))
{
    setModel(m_rows);
    QHeaderView *header = horizontalHeader();
    header->setResizeContentsPrecision(kMeasuredRows);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setMinimumSectionSize(kNarrowestColumn);
    header->setSectionsClickable(true);
    retranslateUi();
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &ValuesTable::onCurrentChanged);
    connect(header, &QHeaderView::sectionClicked, this, &ValuesTable::onHeader_sectionClicked);
}

int ValuesTable::chosenShot() const
{
    return currentIndex().row();
}

void ValuesTable::chooseShot(int shot)
{
    setCurrentIndex(m_rows->index(shot, QuantityTableModel::FirstQuantity + m_rows->chosenColumn()));
    scrollTo(currentIndex());
}

void ValuesTable::setContent(QuantityTableModel::Content content, int chosenQuantity)
{
    const QScopedValueRollback<bool> filling(m_isFilling, true);
    const int shot = chosenShot();
    m_rows->setContent(std::move(content));
    m_rows->setChosenColumn(chosenQuantity);
    fitColumns();
    if (chosenShot() < 0 && shot >= 0) // with other columns the model was reset, and with it the current index
        setCurrentIndex(m_rows->index(shot, QuantityTableModel::FirstQuantity + chosenQuantity));
    emit shotChosen(chosenShot());
}

void ValuesTable::fitColumns()
{
    QHeaderView *header = horizontalHeader();
    int needed = 0;
    for (int column = 0; column < header->count(); ++column)
        needed += std::max(header->sectionSizeHint(column), column == QuantityTableModel::Timestamp ? kTimeWidth : 0);
    const bool fits = needed <= viewport()->width();
    for (int column = QuantityTableModel::FirstQuantity; column < header->count(); ++column)
        header->setSectionResizeMode(column, fits ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

void ValuesTable::onCurrentChanged(const QModelIndex &current)
{
    emit shotChosen(current.row());
    if (!m_isFilling && current.column() >= QuantityTableModel::FirstQuantity)
        emit quantityChosen(current.column() - QuantityTableModel::FirstQuantity);
}

void ValuesTable::onHeader_sectionClicked(int section)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << section;
    if (section >= QuantityTableModel::FirstQuantity)
        emit quantityChosen(section - QuantityTableModel::FirstQuantity);
}

void ValuesTable::retranslateUi()
{
    setAccessibleName(tr("Werte der Schüsse"));
    m_rows->retranslate();
}
