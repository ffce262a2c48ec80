#include "view/blackbox/dayspanel.h"

#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "view/blackbox/ticktable.h"
#include "view/common/tabstyle.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kSpacing = 20; // pixels
constexpr int kTableWidth = 460;

} // namespace

DaysPanel::DaysPanel(BlackBoxDays *days, QWidget *parent)
    : TranslatedWidget(parent)
    , m_days(days)
{
    createLayout();
    connectButtons();
    connect(days, &QAbstractItemModel::dataChanged, this, &DaysPanel::updateState);
    connect(days, &QAbstractItemModel::modelReset, this, &DaysPanel::restoreChosenDay);
    connect(days, &QAbstractItemModel::rowsInserted, this, &DaysPanel::restoreChosenDay);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    showDay(current.row());
            });
    retranslateUi();
}

void DaysPanel::createLayout()
{
    m_heading = new QLabel(this);
    tabstyle::makeHeading(m_heading);
    m_request = new QtMaterialFlatButton(this);
    m_request->setObjectName(QStringLiteral("buttonList"));
    m_table = new TickTable(QStringLiteral("tableDays"), m_days, this);
    m_table->setFixedWidth(kTableWidth);
    m_selectAll = new QtMaterialFlatButton(this);
    m_selectAll->setObjectName(QStringLiteral("buttonSelectAll"));
    m_selectNone = new QtMaterialFlatButton(this);
    m_selectNone->setObjectName(QStringLiteral("buttonSelectNone"));
    m_selectNew = new QtMaterialFlatButton(this);
    m_selectNew->setObjectName(QStringLiteral("buttonSelectNew"));
    m_fetch = new QtMaterialRaisedButton(this);
    m_fetch->setObjectName(QStringLiteral("buttonFetch"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kSpacing);
    auto *top = new QHBoxLayout;
    layout->addLayout(top);
    top->addWidget(m_heading, 1);
    top->addWidget(m_request);
    layout->addWidget(m_table, 1);
    auto *selection = new QHBoxLayout;
    layout->addLayout(selection);
    for (QPushButton *button : {m_selectAll, m_selectNone, m_selectNew})
        selection->addWidget(button, 1);
    layout->addWidget(m_fetch);
}

void DaysPanel::connectButtons()
{
    using Selection = BlackBoxDays::Selection;
    connect(m_request, &QPushButton::clicked, this, &DaysPanel::listRequested);
    connect(m_fetch, &QPushButton::clicked, this, &DaysPanel::fetchClicked);
    const std::initializer_list<std::pair<QPushButton *, Selection>> selections{
        {m_selectAll, Selection::All}, {m_selectNone, Selection::None}, {m_selectNew, Selection::New}};
    for (const auto &[button, selection] : selections)
        connect(button, &QPushButton::clicked, this, [this, selected = selection] { m_days->select(selected); });
}

void DaysPanel::setEntries(const QStringList &entries)
{
    m_numLogged = loggedDays(entries).size();
    m_days->setEntries(entries);
    updateState();
}

void DaysPanel::forgetBox()
{
    m_numLogged = 0;
    m_days->forgetBox();
    updateState();
}

void DaysPanel::chooseDay(int row)
{
    m_table->setCurrentIndex(m_days->index(row, 0));
    showDay(row); // also where the row was current before: its files may be others
}

void DaysPanel::showDay(int row)
{
    if (row >= 0 && row < m_days->rowCount())
        m_chosenDay = m_days->days().at(row).date;
    emit dayChosen(row);
    updateState();
}

/// Rows have moved or were removed: the files shown stay those of the same day.
void DaysPanel::restoreChosenDay()
{
    int row = 0;
    while (row < m_days->rowCount() && m_days->days().at(row).date != m_chosenDay)
        ++row;
    if (row < m_days->rowCount())
        chooseDay(row);
    else
        showDay(-1);
}

void DaysPanel::setIdle(bool idle)
{
    m_idle = idle;
    updateState();
}

void DaysPanel::setListButtonEnabled(bool enabled)
{
    m_listAllowed = enabled;
    updateState();
}

void DaysPanel::updateState()
{
    m_request->setEnabled(m_idle && m_listAllowed);
    m_fetch->setEnabled(m_idle && !m_days->selectedDates().isEmpty());
    for (QPushButton *button : {m_selectAll, m_selectNone, m_selectNew})
        button->setEnabled(m_days->rowCount() > 0);
    m_heading->setText(m_numLogged > 0 ? tr("Tage auf der Box: %1").arg(m_numLogged) : tr("Tage auf der Box"));
}

void DaysPanel::retranslateUi()
{
    m_request->setText(tr("&Liste laden"));
    m_request->setToolTip(tr("Die Box nach den Tagen fragen, die sie aufgezeichnet hat"));
    m_selectAll->setText(tr("&Alle"));
    m_selectAll->setToolTip(tr("Alle Tage auswählen"));
    m_selectNone->setText(tr("&Keine"));
    m_selectNone->setToolTip(tr("Keinen Tag auswählen"));
    m_selectNew->setText(tr("&Nur neue"));
    m_selectNew->setToolTip(tr("Die Tage auswählen, von denen noch nichts geladen ist"));
    m_fetch->setText(tr("&Holen"));
    m_fetch->setToolTip(tr("Die Dateien der ausgewählten Tage von der Box kopieren"));
    m_table->setAccessibleName(tr("Aufgezeichnete Tage"));
    m_days->retranslate();
    updateState();
}
