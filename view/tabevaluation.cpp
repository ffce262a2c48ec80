#include "view/tabevaluation.h"

#include "view/logging.h"
#include "view/shottable.h"
#include "view/tabstyle.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

struct TabEvaluation::Private
{
    ShotTable *shots = nullptr;
    QLabel *heading = nullptr;
    QTableView *table = nullptr;

    void createTable(QWidget *tab);
    void updateHeading() const;
};

void TabEvaluation::Private::createTable(QWidget *tab)
{
    table = new QTableView(tab);
    table->setObjectName(QStringLiteral("tableShots"));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(36);
    table->horizontalHeader()->setMinimumSectionSize(60);
    table->setStyleSheet(QStringLiteral("QHeaderView {font-size: 16px;}"));
}

void TabEvaluation::Private::updateHeading() const
{
    const int count = shots ? shots->rowCount() : 0;
    heading->setText(count == 0 ? tr("Noch keine Messungen") : tr("Messungen: %1").arg(count));
}

TabEvaluation::TabEvaluation(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->heading = new QLabel(this);
    tabstyle::makeHeading(d->heading);
    d->createTable(this);
    auto *column = new QVBoxLayout(this);
    column->addWidget(d->heading);
    column->addWidget(d->table, 1);
    retranslateUi();
}

TabEvaluation::~TabEvaluation() = default;

void TabEvaluation::setModel(const Model *model)
{
    d->shots = new ShotTable(model, this);
    d->table->setModel(d->shots);
    for (int column = ShotTable::FirstSensorColumn; column < ShotTable::NumColumns; ++column)
        d->table->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    d->table->setColumnWidth(ShotTable::NumberColumn, 60);
    d->table->setColumnWidth(ShotTable::TimeColumn, 150);
    connect(d->shots, &QAbstractItemModel::modelReset, this, [this] { d->updateHeading(); });
    connect(d->shots, &QAbstractItemModel::rowsInserted, this, [this] { d->updateHeading(); });
    d->updateHeading();
}

void TabEvaluation::updateData()
{
    if (d->shots && isVisible())
        d->shots->refresh();
}

void TabEvaluation::updateDescription()
{
    if (d->shots)
        emit d->shots->headerDataChanged(Qt::Horizontal, 0, d->shots->columnCount() - 1);
}

void TabEvaluation::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (d->shots)
        d->shots->refresh();
}

void TabEvaluation::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabEvaluation::retranslateUi()
{
    d->table->setAccessibleName(tr("Messungen mit kleinstem und größtem Wert je Sensor"));
    d->updateHeading();
    updateDescription();
}
