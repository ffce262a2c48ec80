#include "view/sensors/sensortreemodel.h"

#include <QPainter>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr int kRowHeight = 40; // pixels: large enough for gloves
constexpr int kSwatchSize = 18;
constexpr int kSwatchGap = 6; // between check mark and swatch
constexpr int kStatusSize = 20;
constexpr int kLongestName = 100;

// The internal id of a sensor's index is the number of its group, from 1; that of a group's index is 0.
constexpr quintptr kGroupId = 0;

QIcon swatchIcon(const QColor &color)
{
    QIcon icon;
    for (int ratio : {1, 2}) {
        QPixmap picture(QSize(kSwatchGap + kSwatchSize, kSwatchSize) * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color.darker(130), 1));
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(kSwatchGap + 0.5, 0.5, kSwatchSize - 1, kSwatchSize - 1), 4, 4);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

QIcon gapIcon()
{
    QPixmap picture(kSwatchGap, kSwatchSize);
    picture.fill(Qt::transparent);
    return picture;
}

bool isSameShape(const SensorList &a, const SensorList &b)
{
    return std::equal(a.groups.cbegin(), a.groups.cend(), b.groups.cbegin(), b.groups.cend(),
                      [](const auto &x, const auto &y) { return x.count == y.count; });
}

} // namespace

SensorTreeModel::SensorTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_gap(gapIcon())
{
    for (std::size_t i = 0; i < m_statusIcons.size(); ++i) {
        for (int ratio : {1, 2})
            m_statusIcons[i].addPixmap(statusPicture(static_cast<SensorStatus>(i), kStatusSize, ratio));
    }
}

QSize SensorTreeModel::iconSize()
{
    return {kSwatchGap + kSwatchSize, kStatusSize};
}

void SensorTreeModel::setSensors(const SensorList &list)
{
    const SensorList before = m_list;
    if (!isSameShape(before, list)) {
        beginResetModel();
        m_list = list;
        m_rows = QVector<Row>(list.sensors.size());
        for (int i = 0; i < list.sensors.size(); ++i)
            m_rows[i].swatch = swatchIcon(list.sensors.at(i).color);
        endResetModel();
        return;
    }
    m_list = list;
    for (int i = 0; i < list.sensors.size(); ++i) {
        if (list.sensors.at(i).color != before.sensors.at(i).color)
            m_rows[i].swatch = swatchIcon(list.sensors.at(i).color);
        if (!(list.sensors.at(i) == before.sensors.at(i)))
            emit dataChanged(indexOf(i), indexOf(i, kNumColumns - 1));
    }
    for (int group = 0; group < list.groups.size(); ++group) {
        if (list.groups.at(group).name != before.groups.at(group).name)
            emit dataChanged(index(group, 0), index(group, 0));
    }
}

void SensorTreeModel::setShown(int sensor, bool shown)
{
    if (sensor < 0 || sensor >= m_rows.size() || m_rows.at(sensor).shown == shown)
        return;
    m_rows[sensor].shown = shown;
    announce(sensor, NameColumn);
    const QModelIndex group = indexOf(sensor).parent();
    emit dataChanged(group, group, {Qt::CheckStateRole});
}

bool SensorTreeModel::isShown(int sensor) const
{
    return sensor >= 0 && sensor < m_rows.size() && m_rows.at(sensor).shown;
}

void SensorTreeModel::setReading(int sensor, const QString &value, SensorStatus status)
{
    if (sensor < 0 || sensor >= m_rows.size())
        return;
    Row &row = m_rows[sensor];
    const bool judgedAnew = row.status != status;
    if (row.value != value || judgedAnew) {
        row.value = value;
        row.status = status;
        announce(sensor, ValueColumn);
    }
    if (judgedAnew)
        announce(sensor, StatusColumn);
}

void SensorTreeModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, kNumColumns - 1);
    for (int i = 0; i < m_rows.size(); ++i)
        emit dataChanged(indexOf(i), indexOf(i, kNumColumns - 1));
}

int SensorTreeModel::sensorAt(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == kGroupId)
        return -1;
    return m_list.groups.at(static_cast<int>(index.internalId()) - 1).first + index.row();
}

QModelIndex SensorTreeModel::indexOf(int sensor, int column) const
{
    if (sensor < 0 || sensor >= m_rows.size())
        return {};
    int group = 0;
    while (sensor >= m_list.groups.at(group).first + m_list.groups.at(group).count)
        ++group;
    return createIndex(sensor - m_list.groups.at(group).first, column, static_cast<quintptr>(group) + 1);
}

QModelIndex SensorTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kGroupId);
}

QModelIndex SensorTreeModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == kGroupId)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, kGroupId);
}

int SensorTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return m_list.groups.size();
    return parent.internalId() == kGroupId && parent.column() == 0 ? m_list.groups.at(parent.row()).count : 0;
}

int SensorTreeModel::columnCount(const QModelIndex & /*parent*/) const
{
    return kNumColumns;
}

Qt::ItemFlags SensorTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() != NameColumn)
        return flags;
    const int sensor = sensorAt(index);
    flags |= Qt::ItemIsUserCheckable;
    if (sensor >= 0 && m_list.sensors.at(sensor).canRename())
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant SensorTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::SizeHintRole)
        return QSize(0, kRowHeight);
    if (role == Qt::TextAlignmentRole && index.column() == ValueColumn)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    const int sensor = sensorAt(index);
    return sensor < 0 ? groupData(index.row(), index.column(), role) : sensorData(sensor, index.column(), role);
}

QVariant SensorTreeModel::groupData(int group, int column, int role) const
{
    if (column != NameColumn)
        return {};
    if (role == Qt::DisplayRole)
        return m_list.groups.at(group).name;
    if (role == Qt::DecorationRole)
        return m_gap;
    return role == Qt::CheckStateRole ? QVariant(groupState(group)) : QVariant();
}

QVariant SensorTreeModel::sensorData(int sensor, int column, int role) const
{
    const Row &row = m_rows.at(sensor);
    switch (role) {
    case Qt::DisplayRole:
        return displayText(sensor, column);
    case Qt::EditRole:
        return column == NameColumn ? QVariant(m_list.sensors.at(sensor).name) : QVariant();
    case Qt::CheckStateRole:
        return column == NameColumn ? QVariant(row.shown ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        return icon(row, column);
    case Qt::ForegroundRole:
        return foreground(row, column);
    case Qt::ToolTipRole:
        return toolTip(sensor, column);
    case Qt::AccessibleTextRole:
        return column == StatusColumn ? QVariant(statusText(row.status)) : QVariant();
    default:
        return {};
    }
}

QVariant SensorTreeModel::icon(const Row &row, int column) const
{
    if (column == NameColumn)
        return row.swatch;
    return column == StatusColumn ? QVariant(m_statusIcons.at(static_cast<std::size_t>(row.status))) : QVariant();
}

QVariant SensorTreeModel::foreground(const Row &row, int column)
{
    if (column != ValueColumn || row.status == SensorStatus::Inside)
        return {}; // the default
    return statusColor(row.status);
}

QVariant SensorTreeModel::displayText(int sensor, int column) const
{
    if (column == NameColumn)
        return m_list.sensors.at(sensor).name;
    if (column == ValueColumn)
        return m_rows.at(sensor).value;
    return column == UnitColumn ? QVariant(m_list.sensors.at(sensor).unit) : QVariant();
}

QString SensorTreeModel::toolTip(int sensor, int column) const
{
    const SensorInfo &info = m_list.sensors.at(sensor);
    QString status =
        info.channel < 0 ? tr("Die Box sendet für diesen Sensor keine Werte.") : statusText(m_rows.at(sensor).status);
    if (column != NameColumn)
        return status;
    const QString tip = info.canRename()
                            ? tr("%1\nF2 oder Doppelklick: umbenennen\nEingabetaste: bearbeiten").arg(info.name)
                            : info.name;
    return Qt::convertFromPlainText(tip); // a name may contain what looks like a tag
}

Qt::CheckState SensorTreeModel::groupState(int group) const
{
    const SensorList::Group &rows = m_list.groups.at(group);
    const auto first = m_rows.cbegin() + rows.first;
    const auto shown = std::count_if(first, first + rows.count, [](const Row &row) { return row.shown; });
    if (shown == 0)
        return Qt::Unchecked;
    return shown == rows.count ? Qt::Checked : Qt::PartiallyChecked;
}

bool SensorTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != NameColumn)
        return false;
    const int sensor = sensorAt(index);
    if (role == Qt::CheckStateRole) {
        if (sensor >= 0)
            toggle(sensor, value.toInt() == Qt::Checked);
        else
            toggleGroup(index.row());
        return true;
    }
    const QString name = value.toString().simplified().left(kLongestName);
    if (role != Qt::EditRole || sensor < 0 || name.isEmpty() || name == m_list.sensors.at(sensor).name)
        return false;
    emit renamed(sensor, name);
    return true;
}

void SensorTreeModel::toggle(int sensor, bool shown)
{
    if (m_rows.at(sensor).shown == shown)
        return;
    setShown(sensor, shown);
    emit shownChanged(sensor, shown);
}

void SensorTreeModel::toggleGroup(int group)
{
    const SensorList::Group rows = m_list.groups.at(group);
    const bool shown = groupState(group) != Qt::Checked;
    for (int sensor = rows.first; sensor < rows.first + rows.count; ++sensor)
        toggle(sensor, shown);
}

QVariant SensorTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= kNumColumns)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int((section == ValueColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    const QString titles[] = {tr("Sensor"), tr("Wert"), tr("Einheit"), tr("Status")};
    if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
        return titles[section];
    // The column of the status is as narrow as its sign.
    return role == Qt::DisplayRole && section != StatusColumn ? QVariant(titles[section]) : QVariant();
}

void SensorTreeModel::announce(int sensor, int column)
{
    const QModelIndex cell = indexOf(sensor, column);
    emit dataChanged(cell, cell);
}
