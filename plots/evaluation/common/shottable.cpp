#include "plots/evaluation/common/shottable.h"

#include <QEvent>
#include <QHeaderView>

ShotTable::ShotTable(const QString &name, QWidget *parent)
    : QTableView(parent)
{
    constexpr int kRowHeight = 30; // pixels
    setObjectName(name);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setHighlightSections(false);
}

void ShotTable::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QTableView::changeEvent(event);
}
