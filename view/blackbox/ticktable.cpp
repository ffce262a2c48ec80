#include "view/blackbox/ticktable.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace {

constexpr int kRowHeight = 40; // pixels: a finger's width
constexpr int kTickRoom = 10;

/// Keeps the text off the tick, which the sheet makes larger than the style has room for.
class TickDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!(option->features & QStyleOptionViewItem::HasCheckIndicator))
            return;
        option->features |= QStyleOptionViewItem::HasDecoration; // an empty one
        option->decorationSize = QSize(kTickRoom, 1);
    }
};

} // namespace

TickTable::TickTable(const QString &name, QAbstractItemModel *model, QWidget *parent)
    : QTableView(parent)
{
    setObjectName(name);
    setModel(model);
    setItemDelegateForColumn(0, new TickDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    setStyleSheet(QStringLiteral("QHeaderView {font-size: 16px;}"
                                 "QTableView::indicator {width: 26px; height: 26px;}"));
    setColumnWidth(1, 110);
    setColumnWidth(2, 130);
}
