#include "plots/evaluation/common/shottable.h"

#include <QHeaderView>
#include <QTableView>

QTableView *newShotTable(QWidget *parent, const QString &name, QAbstractItemModel *model)
{
    constexpr int kRowHeight = 30; // pixels
    auto *table = new QTableView(parent);
    table->setObjectName(name);
    table->setModel(model);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    table->horizontalHeader()->setHighlightSections(false);
    return table;
}
