#include "view/blackbox/blackboxfiles.h"

#include <QFileInfo>
#include <QLocale>
#include <QTextDocument>

BlackBoxFiles::BlackBoxFiles(BlackBoxDays *days, QObject *parent)
    : QAbstractTableModel(parent)
    , m_days(days)
{
    connect(days, &QAbstractItemModel::dataChanged, this, &BlackBoxFiles::refresh);
}

void BlackBoxFiles::setDay(int row)
{
    beginResetModel();
    m_row = row >= 0 && row < m_days->rowCount() ? row : -1;
    m_count = files().size();
    endResetModel();
}

QVector<BlackBoxFile> BlackBoxFiles::files() const
{
    return m_row >= 0 && m_row < m_days->days().size() ? m_days->days().at(m_row).files : QVector<BlackBoxFile>();
}

QString BlackBoxFiles::path(int row) const
{
    return row >= 0 && row < m_count ? files().value(row).path : QString();
}

void BlackBoxFiles::refresh()
{
    if (files().size() != m_count)
        setDay(m_row); // resets the model, as rows may have come anywhere
    else if (m_count > 0)
        emit dataChanged(index(0, 0), index(m_count - 1, NumColumns - 1));
}

void BlackBoxFiles::retranslate()
{
    refresh();
    emit headerDataChanged(Qt::Horizontal, 0, NumColumns - 1);
}

int BlackBoxFiles::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

int BlackBoxFiles::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : NumColumns;
}

QVariant BlackBoxFiles::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const BlackBoxFile file = files().value(index.row());
    if (role == Qt::DisplayRole)
        return text(file, index.column());
    if (role == Qt::ToolTipRole)
        return Qt::convertFromPlainText(QFileInfo(file.path).fileName()); // the name may look like a tag
    if (role == Qt::CheckStateRole && index.column() == NameColumn)
        return file.ticked ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::TextAlignmentRole && index.column() == SizeColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    const BlackBoxState state = file.imported ? BlackBoxState::Imported : BlackBoxState::Fetched;
    return index.column() == StateColumn ? stateLook(state, role) : QVariant();
}

QString BlackBoxFiles::text(const BlackBoxFile &file, int column) const
{
    if (column == NameColumn)
        return QFileInfo(file.path).fileName();
    if (column == SizeColumn)
        return QLocale().formattedDataSize(file.size, 1, QLocale::DataSizeTraditionalFormat);
    return stateText(file.imported ? BlackBoxState::Imported : BlackBoxState::Fetched);
}

bool BlackBoxFiles::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != NameColumn)
        return false;
    m_days->tickFile(m_row, index.row(), value.toInt() != Qt::Unchecked);
    return true;
}

Qt::ItemFlags BlackBoxFiles::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.column() == NameColumn ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant BlackBoxFiles::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Datei");
    case SizeColumn:
        return tr("Größe");
    default:
        return tr("Zustand");
    }
}
