#include "view/window/prompts/comparisontable.h"

#include "app/theme.h"
#include "view/common/comparison.h"

#include <QHeaderView>

namespace {

constexpr int kRowHeight = 27;    // pixels
constexpr int kMarkWidth = 34;    // pixels
constexpr int kLongestText = 500; // characters of a cell: the box may send a line of any text

} // namespace

ComparisonTable::ComparisonTable(const Comparison &comparison, QWidget *parent)
    : QTableWidget(comparison.rows.size(), NumColumns, parent)
{
    setObjectName(QStringLiteral("tableComparison"));
    setAccessibleName(comparison.currentTitle + QLatin1String(" / ") + comparison.offeredTitle);
    setStyleSheet(QStringLiteral("QTableWidget {font-size: 17px; color: %1; background-color: %2;}"
                                 "QHeaderView::section {font-size: 17px;}")
                      .arg(theme::colorText, theme::colorBackground));
    setHorizontalHeaderLabels({QString(), QString(), comparison.currentTitle, comparison.offeredTitle});
    setFocusPolicy(Qt::NoFocus);
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    for (int row = 0; row < comparison.rows.size(); ++row) {
        const Comparison::Row &fields = comparison.rows.at(row);
        addRow(row, fields.name, fields.current, fields.offered, fields.isDifferent());
    }
    fitColumns();
}

void ComparisonTable::addRow(int row, const QString &name, const QString &current, const QString &offered,
                             bool isDifferent)
{
    const QString texts[] = {isDifferent ? QStringLiteral("≠") : QString(), name, current, offered};
    for (int column = 0; column < NumColumns; ++column) {
        const QString text = texts[column].simplified(); // one line each
        auto *cell = new QTableWidgetItem(text.left(kLongestText));
        cell->setToolTip(text.left(kLongestText));
        if (isDifferent) {
            QFont bold = cell->font();
            bold.setBold(true);
            cell->setFont(bold);
            cell->setBackground(theme::qColorLight);
        }
        setItem(row, column, cell);
    }
}

void ComparisonTable::fitColumns()
{
    QHeaderView *header = horizontalHeader();
    header->setSectionsClickable(false);
    header->setSectionResizeMode(Mark, QHeaderView::Fixed);
    header->resizeSection(Mark, kMarkWidth);
    header->setSectionResizeMode(Name, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(Current, QHeaderView::Stretch);
    header->setSectionResizeMode(Offered, QHeaderView::Stretch);
}

/// Long texts take several lines: what differs may be at their ends.
void ComparisonTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    resizeRowsToContents();
}
