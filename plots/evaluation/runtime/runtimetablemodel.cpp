#include "plots/evaluation/runtime/runtimetablemodel.h"

#include "app/theme.h"

#include <algorithm>

namespace {

std::optional<double> numberIn(const RuntimeRow &row, int column)
{
    switch (column) {
    case RuntimeTableModel::Start:
        return row.runtime.startTime();
    case RuntimeTableModel::Duration:
        return row.runtime.duration();
    case RuntimeTableModel::Stop:
        return row.runtime.stopTime();
    case RuntimeTableModel::Total:
        return row.runtime.wholeSeconds();
    case RuntimeTableModel::Pause:
        return row.pause ? std::optional<double>(double(*row.pause)) : std::nullopt;
    default:
        return std::nullopt;
    }
}

// With a decimal point in every language, unlike the other pages: this table's format is fixed.
QString figure(double value)
{
    return QString::number(value, 'g', 6);
}

QVector<double> numbersOf(const std::vector<RuntimeRow> &rows, int column)
{
    QVector<double> numbers;
    numbers.reserve(static_cast<int>(rows.size()));
    for (const RuntimeRow &row : rows) {
        if (const std::optional<double> number = numberIn(row, column))
            numbers.append(*number);
    }
    return numbers;
}

std::optional<statistics::Moments> momentsOf(const QVector<double> &numbers)
{
    return numbers.isEmpty() ? std::nullopt : std::optional(statistics::moments(numbers));
}

} // namespace

bool operator==(const RuntimeRow &a, const RuntimeRow &b)
{
    return a.runtime == b.runtime && a.pause == b.pause && a.timestamp == b.timestamp;
}

RuntimeTableModel::RuntimeTableModel(QObject *parent)
    : ShotTableModel(parent)
{}

void RuntimeTableModel::setRows(const std::vector<RuntimeRow> &rows)
{
    const bool sameCount = rows.size() == m_rows.size();
    resizeRows(m_rows, rows);
    const auto [first, newFirst] = std::mismatch(m_rows.begin(), m_rows.end(), rows.begin());
    if (sameCount && first == m_rows.end())
        return;
    const auto changedFrom = static_cast<int>(std::distance(m_rows.begin(), first));
    std::copy(newFirst, rows.end(), first);
    computeSummary(); // before the announcement, which includes the two last rows
    emit dataChanged(index(changedFrom, 0), index(rowCount() - 1, NumColumns - 1));
}

void RuntimeTableModel::computeSummary()
{
    for (int column = 0; column < Pause; ++column)
        m_moments[static_cast<size_t>(column)] = momentsOf(numbersOf(m_rows, column));
    const statistics::UsualTimes pauses = statistics::withoutBreaks(numbersOf(m_rows, Pause));
    m_moments[Pause] = momentsOf(pauses.values);
    m_breaks = pauses.leftOut;
}

int RuntimeTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numShots() + kExtraRows;
}

int RuntimeTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(NumColumns);
}

QString RuntimeTableModel::shotText(int shot, int column) const
{
    const RuntimeRow &row = m_rows[static_cast<size_t>(shot)];
    if (column == Number)
        return QString::number(shot);
    if (column == Timestamp)
        return timestampText(row.timestamp);
    if (column == Pause)
        return row.pause ? QString::number(*row.pause) : QString();
    if (column == Total)
        return QString::number(row.runtime.wholeSeconds());
    return figure(numberIn(row, column).value_or(0.0));
}

QString RuntimeTableModel::summaryText(bool sigmas, int column) const
{
    if (column == Number)
        return sigmas ? tr("Sigma") : tr("Mittelwert");
    if (column == Timestamp)
        return breaksText();
    const std::optional<statistics::Moments> &moments = m_moments[static_cast<size_t>(column)];
    if (!moments)
        return {};
    return figure(sigmas ? moments->sigma : moments->mean);
}

QString RuntimeTableModel::breaksText() const
{
    if (m_breaks == 0)
        return {};
    return m_breaks == 1 ? tr("ohne 1 lange Pause") : tr("ohne %1 lange Pausen").arg(m_breaks);
}

QVariant RuntimeTableModel::tip(const QModelIndex &index) const
{
    const bool isOfPauses = index.column() == Pause || (index.column() == Timestamp && m_breaks > 0);
    return index.row() >= numShots() && isOfPauses
               ? QVariant(tr("Pausen, die länger sind als das Fünffache des Medians, zählen hier nicht mit, ebenso "
                             "solche, bei denen die Uhr zurückgestellt wurde."))
               : QVariant();
}

QVariant RuntimeTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const bool isShot = index.row() < numShots();
    switch (role) {
    case Qt::DisplayRole:
        return isShot ? shotText(index.row(), index.column())
                      : summaryText(index.row() == numShots() + 1, index.column());
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (index.column() <= Timestamp ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::ToolTipRole:
        return tip(index);
    case Qt::BackgroundRole:
        return isShot ? QVariant() : QVariant(theme::qColorLight);
    default:
        return {};
    }
}

QVariant RuntimeTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Number:
        return tr("Schuss");
    case Timestamp:
        return tr("timestamp");
    case Start:
        return tr("Start [s]");
    case Duration:
        return tr("Dauer [s]");
    case Stop:
        return tr("Stop [s]");
    case Total:
        return tr("Gesamtdauer [s]");
    case Pause:
        return tr("Pause [s]");
    default:
        return {};
    }
}
