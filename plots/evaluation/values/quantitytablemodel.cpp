#include "plots/evaluation/values/quantitytablemodel.h"

#include "app/theme.h"
#include "plots/evaluation/common/evaluationdata.h"

#include <QFont>

#include <algorithm>

namespace {

const QColor kOutsideBackground(0xFF, 0xD9, 0xD6);
const QColor kOutsideText(0x9C, 0x1C, 0x13);
const QColor kChosenBackground(0xEA, 0xF2, 0xF8);

template <typename Value>
std::size_t commonPart(const std::vector<Value> &a, const std::vector<Value> &b)
{
    const std::size_t count = std::min(a.size(), b.size());
    const auto end = a.begin() + static_cast<std::ptrdiff_t>(count);
    return static_cast<std::size_t>(std::distance(a.begin(), std::mismatch(a.begin(), end, b.begin()).first));
}

bool isSameColumn(const QuantityTableModel::QuantityColumn &a, const QuantityTableModel::QuantityColumn &b)
{
    return a.quantity == b.quantity;
}

bool haveSameColumns(const QuantityTableModel::Content &a, const QuantityTableModel::Content &b)
{
    return std::equal(a.columns.begin(), a.columns.end(), b.columns.begin(), b.columns.end(), isSameColumn);
}

bool haveSameTitles(const QuantityTableModel::Content &a, const QuantityTableModel::Content &b)
{
    return std::equal(a.columns.begin(), a.columns.end(), b.columns.begin(), b.columns.end(),
                      [](const auto &one, const auto &other) { return one.title == other.title; });
}

} // namespace

QuantityTableModel::QuantityTableModel(QObject *parent)
    : ShotTableModel(parent)
{}

// The first row that looks different, of those that both have.
int QuantityTableModel::firstDifference(const Content &other) const
{
    std::size_t row = commonPart(m_content.timestamps, other.timestamps);
    for (std::size_t i = 0; i < m_content.columns.size(); ++i) {
        if (!(m_content.columns[i].limits == other.columns[i].limits))
            return 0; // any cell may have another colour
        row = std::min(row, commonPart(m_content.columns[i].values, other.columns[i].values));
    }
    return static_cast<int>(row);
}

// Shots come and go at the end; what else differs is announced as changed.
void QuantityTableModel::resizeTo(const Content &content)
{
    const int before = numShots();
    const int after = static_cast<int>(content.timestamps.size());
    if (after > before) {
        beginInsertRows({}, before, after - 1);
        m_content = content;
        endInsertRows();
    } else if (after < before) {
        beginRemoveRows({}, after, before - 1);
        m_content = content;
        endRemoveRows();
    } else {
        m_content = content;
    }
}

void QuantityTableModel::setContent(Content content)
{
    if (!haveSameColumns(m_content, content)) { // inserting and removing columns is not worth its code
        beginResetModel();
        m_content = std::move(content);
        endResetModel();
        return;
    }
    const bool sameTitles = haveSameTitles(m_content, content);
    const int common = std::min(numShots(), static_cast<int>(content.timestamps.size()));
    const int first = firstDifference(content);
    resizeTo(content);
    if (first < common)
        emit dataChanged(index(first, 0), index(common - 1, columnCount() - 1));
    if (!sameTitles)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void QuantityTableModel::setChosenColumn(int column)
{
    if (column == m_chosenColumn)
        return;
    m_chosenColumn = column;
    if (numShots() > 0)
        emit dataChanged(index(0, 0), index(numShots() - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int QuantityTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : FirstQuantity + static_cast<int>(m_content.columns.size());
}

// nullptr for a cell that is none of a quantity.
const std::optional<double> *QuantityTableModel::valueAt(const QModelIndex &index) const
{
    if (index.column() < FirstQuantity)
        return nullptr;
    return &m_content.columns[static_cast<std::size_t>(index.column() - FirstQuantity)]
                .values[static_cast<std::size_t>(index.row())];
}

bool QuantityTableModel::isOutside(const QModelIndex &index) const
{
    const std::optional<double> *value = valueAt(index);
    return value && *value
           && m_content.columns[static_cast<std::size_t>(index.column() - FirstQuantity)].limits.isOutside(**value);
}

QString QuantityTableModel::text(const QModelIndex &index) const
{
    if (index.column() == Number)
        return QString::number(index.row());
    if (index.column() == Timestamp)
        return timestampText(m_content.timestamps[static_cast<std::size_t>(index.row())]);
    const std::optional<double> &value = *valueAt(index);
    return value ? figureText(*value) : QString();
}

QVariant QuantityTableModel::background(const QModelIndex &index) const
{
    if (isOutside(index))
        return kOutsideBackground;
    return index.column() - FirstQuantity == m_chosenColumn && m_chosenColumn >= 0 ? QVariant(kChosenBackground)
                                                                                   : QVariant();
}

QVariant QuantityTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (index.column() == Timestamp ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::BackgroundRole:
        return background(index);
    case Qt::ForegroundRole:
        return isOutside(index) ? QVariant(kOutsideText) : QVariant();
    case Qt::ToolTipRole:
        return isOutside(index) ? QVariant(tr("Außerhalb der Grenzen")) : QVariant();
    default:
        return {};
    }
}

QVariant QuantityTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount())
        return {};
    if (section == Number)
        return tr("Schuss");
    if (section == Timestamp)
        return tr("Zeitstempel");
    const auto quantity = static_cast<std::size_t>(section - FirstQuantity);
    return m_content.columns[quantity].title;
}
