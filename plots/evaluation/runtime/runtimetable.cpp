#include "plots/evaluation/runtime/runtimetable.h"

#include "model/model.h"
#include "plots/evaluation/runtime/runtimetablemodel.h"

#include <QHeaderView>

#include <algorithm>

namespace {

constexpr int kWidestTable = 900; // pixels that its columns can use; the box plots get the rest

std::optional<qint64> pauseBetween(const QDateTime &from, const QDateTime &to)
{
    return from.isValid() && to.isValid() ? std::optional(from.secsTo(to)) : std::nullopt;
}

bool hasTimestamps(const std::vector<RuntimeRow> &rows, size_t first, const QDateTime &from, const QDateTime &to)
{
    return first + 1 < rows.size() && rows[first].timestamp == from && rows[first + 1].timestamp == to;
}

// Pauses are taken over from the rows before where the time stamps are the same: they seldom change, and taking the
// difference of two local times is slow.
std::vector<RuntimeRow> rowsOf(const Model &model, const std::vector<ShotRuntime> &results,
                               const std::vector<RuntimeRow> &before)
{
    std::vector<RuntimeRow> rows;
    rows.reserve(results.size());
    for (const ShotRuntime &result : results)
        rows.push_back({result, model.timestamp(static_cast<int>(rows.size())), std::nullopt});
    for (size_t i = 0; i + 1 < rows.size(); ++i) {
        const QDateTime &from = rows[i].timestamp;
        const QDateTime &to = rows[i + 1].timestamp;
        rows[i].pause = hasTimestamps(before, i, from, to) ? before[i].pause : pauseBetween(from, to);
    }
    return rows;
}

} // namespace

RuntimeTable::RuntimeTable(QWidget *parent)
    : ShotTable(QStringLiteral("tableRuntime"), parent)
    , m_rows(new RuntimeTableModel(this))
{
    setModel(m_rows);
    setMaximumWidth(kWidestTable);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setStretchLastSection(true); // so fitColumns() leaves the last one alone
    retranslateUi();
}

void RuntimeTable::showResults(const Model &model, const std::vector<ShotRuntime> &results)
{
    m_rows->setRows(rowsOf(model, results, m_rows->rows()));
    fitColumns();
}

int RuntimeTable::numShots() const
{
    return m_rows->numShots();
}

void RuntimeTable::forgetChoice()
{
    clearSelection();
    setCurrentIndex(QModelIndex());
}

// Measured are the titles, the first and the last shot, and the two rows below them: with thousands of shots, measuring
// all of them takes too long, and measuring the visible ones leaves no room for the words of the last rows.
void RuntimeTable::fitColumns()
{
    constexpr int kCellFrame = 16; // pixels of a cell that its text cannot use
    const QString usualFigure = QStringLiteral("-8888.8");
    const QFontMetrics metrics = fontMetrics();
    const int shots = m_rows->numShots();
    QHeaderView *header = horizontalHeader();
    for (int column = 0; column + 1 < RuntimeTableModel::NumColumns; ++column) {
        int text = metrics.horizontalAdvance(usualFigure);
        for (const int row : {0, shots - 1, shots, shots + 1})
            text = std::max(text, metrics.horizontalAdvance(m_rows->index(row, column).data().toString()));
        header->resizeSection(column, std::max(header->sectionSizeHint(column), text + kCellFrame));
    }
}

void RuntimeTable::showEvent(QShowEvent *event)
{
    fitColumns(); // before it is shown for the first time it does not have the fonts of the style sheet
    ShotTable::showEvent(event);
}

void RuntimeTable::retranslateUi()
{
    setAccessibleName(tr("Laufzeiten der Schüsse"));
    m_rows->retranslate();
    fitColumns();
}
