#include "view/tabblackbox.h"

#include "view/logging.h"
#include "view/tabstyle.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

struct TabBlackBox::Private
{
    QStringList entries;
    QLabel *heading = nullptr;
    QLabel *count = nullptr;
    QPushButton *request = nullptr;
    QListWidget *days = nullptr;

    void updateCount() const;
};

void TabBlackBox::Private::updateCount() const
{
    count->setText(entries.isEmpty() ? tr("Noch keine Liste geladen") : tr("Einträge: %1").arg(entries.size()));
}

TabBlackBox::TabBlackBox(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->heading = new QLabel(this);
    tabstyle::makeHeading(d->heading);
    d->count = new QLabel(this);
    d->request = new QPushButton(this);
    d->request->setObjectName(QStringLiteral("buttonList"));
    tabstyle::makeLarge(d->request, QStringLiteral("refresh.png"));
    d->days = new QListWidget(this);
    d->days->setObjectName(QStringLiteral("listWidgetDays"));
    d->days->setSelectionMode(QAbstractItemView::ExtendedSelection);
    d->days->setUniformItemSizes(true);
    auto *row = new QHBoxLayout;
    row->addWidget(d->request);
    row->addWidget(d->count);
    row->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->addWidget(d->heading);
    column->addLayout(row);
    column->addWidget(d->days, 1);
    connect(d->request, &QPushButton::clicked, this, &TabBlackBox::listRequested);
    retranslateUi();
}

TabBlackBox::~TabBlackBox() = default;

void TabBlackBox::setList(const QStringList &entries)
{
    qCDebug(lcView) << Q_FUNC_INFO << entries.size();
    d->entries = entries;
    d->days->clear();
    d->days->addItems(entries);
    d->updateCount();
}

QStringList TabBlackBox::list() const
{
    return d->entries;
}

void TabBlackBox::setListButtonEnabled(bool enabled)
{
    d->request->setEnabled(enabled);
}

void TabBlackBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabBlackBox::retranslateUi()
{
    d->heading->setText(tr("Aufzeichnungen der Box"));
    d->request->setText(tr("&Liste laden"));
    d->request->setToolTip(tr("Die Box nach den Tagen fragen, die sie aufgezeichnet hat"));
    d->days->setAccessibleName(tr("Aufgezeichnete Tage"));
    d->updateCount();
}
