#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/small/leftrightstepbox.h"
#include "kit/small/progressindicator.h"
#include "view/blackbox/shotpreview.h"
#include "view/blackbox/tabblackbox_p.h"
#include "view/common/tabstyle.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int kRowHeight = 40; // a finger's width
constexpr int kDayColumnWidth = 460;
constexpr int kTickRoom = 10;
constexpr int kStepBoxWidth = 240;

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

template <typename Button>
Button *addButton(QWidget *parent, const char *name)
{
    auto *button = new Button(parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

QLabel *addHeading(QWidget *parent)
{
    auto *label = new QLabel(parent);
    tabstyle::makeHeading(label);
    return label;
}

QTableView *addTable(QWidget *parent, const char *name, QAbstractItemModel *model)
{
    auto *table = new QTableView(parent);
    table->setObjectName(QLatin1String(name));
    table->setModel(model);
    table->setItemDelegateForColumn(0, new TickDelegate(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->setStyleSheet(QStringLiteral("QHeaderView {font-size: 16px;}"
                                        "QTableView::indicator {width: 26px; height: 26px;}"));
    table->setColumnWidth(1, 110);
    table->setColumnWidth(2, 130);
    return table;
}

} // namespace

void TabBlackBox::Private::createLayout()
{
    auto *columns = new QHBoxLayout;
    columns->setSpacing(20);
    columns->addLayout(createDayColumn());
    columns->addLayout(createFileColumn(), 1);
    auto *page = new QVBoxLayout(q);
    page->addLayout(columns, 1);
    page->addLayout(createFoot());
}

QBoxLayout *TabBlackBox::Private::createDayColumn()
{
    daysHeading = addHeading(q);
    request = addButton<QtMaterialFlatButton>(q, "buttonList");
    dayTable = addTable(q, "tableDays", &days);
    dayTable->setFixedWidth(kDayColumnWidth);
    selectAll = addButton<QtMaterialFlatButton>(q, "buttonSelectAll");
    selectNone = addButton<QtMaterialFlatButton>(q, "buttonSelectNone");
    selectNew = addButton<QtMaterialFlatButton>(q, "buttonSelectNew");
    fetch = addButton<QtMaterialRaisedButton>(q, "buttonFetch");
    auto *top = new QHBoxLayout;
    top->addWidget(daysHeading, 1);
    top->addWidget(request);
    auto *selection = new QHBoxLayout;
    for (QPushButton *button : {selectAll, selectNone, selectNew})
        selection->addWidget(button, 1);
    auto *column = new QVBoxLayout;
    column->addLayout(top);
    column->addWidget(dayTable, 1);
    column->addLayout(selection);
    column->addWidget(fetch);
    return column;
}

QBoxLayout *TabBlackBox::Private::createFileColumn()
{
    filesHeading = addHeading(q);
    openFolder = addButton<QtMaterialFlatButton>(q, "buttonOpenFolder");
    fileTable = addTable(q, "tableFiles", &files);
    preview = new ShotPreview(q);
    preview->setObjectName(QStringLiteral("shotPreview"));
    fileStep = new LeftRightStepBox(q);
    fileStep->setObjectName(QStringLiteral("stepBoxFile"));
    fileStep->setTotalShown(true);
    fileStep->setRange(1, 0);
    fileStep->setMinimumWidth(kStepBoxWidth);
    import = addButton<QtMaterialRaisedButton>(q, "buttonImport");
    auto *top = new QHBoxLayout;
    top->addWidget(filesHeading, 1);
    top->addWidget(openFolder);
    auto *column = new QVBoxLayout;
    column->addLayout(top);
    column->addWidget(fileTable, 3);
    column->addWidget(preview, 2);
    auto *foot = new QHBoxLayout;
    foot->addWidget(fileStep);
    foot->addWidget(import, 1);
    column->addLayout(foot);
    return column;
}

QBoxLayout *TabBlackBox::Private::createFoot()
{
    indicator = new ProgressIndicator(q);
    indicator->setObjectName(QStringLiteral("progressIndicator"));
    indicator->setFixedSize(indicator->sizeHint());
    progress = new QLabel(q);
    progress->setObjectName(QStringLiteral("labelProgress"));
    progress->setMinimumWidth(160);
    result = new QLabel(q);
    result->setObjectName(QStringLiteral("labelResult"));
    result->setTextFormat(Qt::PlainText);
    result->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    result->setWordWrap(true);
    auto *foot = new QHBoxLayout;
    foot->addWidget(indicator);
    foot->addWidget(progress);
    foot->addWidget(result, 1);
    return foot;
}
