#include "plots/evaluation/overlay/overlaytablemodel.h"

#include "plots/common/localnumber.h"

#include <QFont>

#include <algorithm>
#include <tuple>

bool operator==(const OverlayRow &a, const OverlayRow &b)
{
    return std::tie(a.color, a.isShown, a.isReference, a.timestamp, a.label, a.deviation)
           == std::tie(b.color, b.isShown, b.isReference, b.timestamp, b.label, b.deviation);
}

namespace {

bool isSameButDeviation(const OverlayRow &a, OverlayRow b)
{
    b.deviation = a.deviation;
    return a == b;
}

} // namespace

OverlayTableModel::OverlayTableModel(QObject *parent)
    : ShotTableModel(parent)
{}

void OverlayTableModel::setRows(std::vector<OverlayRow> rows)
{
    resizeRows(m_rows, rows);
    const auto [first, newFirst] = std::mismatch(m_rows.begin(), m_rows.end(), rows.begin());
    if (first == m_rows.end())
        return;
    const auto [last, newLast] = std::mismatch(m_rows.rbegin(), m_rows.rend(), rows.rbegin());
    const auto firstChanged = static_cast<int>(first - m_rows.begin());
    const auto lastChanged = static_cast<int>(m_rows.rend() - last) - 1;
    // The text that the user is typing into a cell is lost when the cell is announced as changed, and while a shot
    // grows its deviation changes all the time.
    const bool onlyDeviations = std::equal(first, m_rows.end(), newFirst, isSameButDeviation);
    m_rows = std::move(rows);
    emit dataChanged(index(firstChanged, onlyDeviations ? Deviation : 0), index(lastChanged, NumColumns - 1));
}

int OverlayTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(NumColumns);
}

QString OverlayTableModel::text(int shot, int column) const
{
    const OverlayRow &row = m_rows[static_cast<size_t>(shot)];
    switch (column) {
    case Number:
        return QString::number(shot);
    case Timestamp:
        return timestampText(row.timestamp);
    case Label:
        return row.label;
    case Deviation:
        if (row.isReference)
            return tr("Referenz");
        return row.deviation ? localNumber(*row.deviation, 'g', 6) : QString();
    default:
        return {};
    }
}

QVariant OverlayTableModel::sortKey(int shot, int column) const
{
    const OverlayRow &row = m_rows[static_cast<size_t>(shot)];
    switch (column) {
    case Color:
        return row.color.hsvHue();
    case Shown:
        return row.isShown;
    case Timestamp:
        // A number, as comparing two local times is slow.
        return row.timestamp.isValid() ? row.timestamp.toMSecsSinceEpoch() : qint64(-1);
    case Label:
        return row.label.toCaseFolded();
    case Deviation:
        return row.deviation.value_or(-1.0);
    default:
        return shot;
    }
}

QVariant OverlayTableModel::toolTip(int shot, int column) const
{
    switch (column) {
    case Color:
        return tr("Farbe der Kurve: Doppelklick oder F2 zum Ändern");
    case Shown:
        return tr("Kurve zeigen: Klick oder Leertaste");
    case Label: {
        const QString &label = m_rows[static_cast<size_t>(shot)].label;
        return label.isEmpty() ? tr("Bezeichnung: Doppelklick oder F2 zum Ändern") : label;
    }
    default:
        return {};
    }
}

QVariant OverlayTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const OverlayRow &row = m_rows[static_cast<size_t>(index.row())];
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), column);
    case Qt::EditRole:
        return column == Color ? QVariant(row.color) : QVariant(text(index.row(), column));
    case Qt::CheckStateRole:
        return column == Shown ? QVariant(row.isShown ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (column == Deviation ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ToolTipRole:
        return toolTip(index.row(), column);
    case kSortRole:
        return sortKey(index.row(), column);
    default:
        return {};
    }
}

QVariant OverlayTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    switch (section) {
    case Color: // the column is too narrow for a title
        return role == Qt::ToolTipRole ? tr("Farbe der Kurve") : QString();
    case Shown:
        return role == Qt::ToolTipRole ? tr("Kurve zeigen") : QString();
    case Number:
        return tr("Schuss");
    case Timestamp:
        return tr("Zeitstempel");
    case Label:
        return tr("Bezeichnung");
    case Deviation:
        return role == Qt::ToolTipRole ? tr("Größter Abstand von der Referenz, wo beide Kurven Werte haben")
                                       : tr("Abweichung");
    default:
        return {};
    }
}

Qt::ItemFlags OverlayTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = ShotTableModel::flags(index);
    if (index.column() == Color || index.column() == Label)
        flags |= Qt::ItemIsEditable;
    if (index.column() == Shown)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool OverlayTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return false;
    const OverlayRow &row = m_rows[static_cast<size_t>(index.row())];
    if (index.column() == Shown && role == Qt::CheckStateRole) {
        emit shownEdited(index.row(), value.toInt() == Qt::Checked);
        return true;
    }
    if (role != Qt::EditRole)
        return false;
    const auto color = value.value<QColor>();
    if (index.column() == Color && color.isValid() && color != row.color)
        emit colorEdited(index.row(), color);
    else if (index.column() == Label && value.toString().trimmed() != row.label)
        emit labelEdited(index.row(), value.toString().trimmed());
    else
        return false;
    return true;
}
