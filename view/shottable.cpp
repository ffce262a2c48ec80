#include "view/shottable.h"

#include "model/model.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr int kDigits = 5;

} // namespace

ShotTable::ShotTable(const Model *model, QObject *parent)
    : QAbstractTableModel(parent)
    , m_model(model)
{
    m_revision = model->structureRevision();
    m_rows.resize(static_cast<std::size_t>(model->numChannels(0)));
}

void ShotTable::refresh()
{
    const int count = m_model->numChannels(0);
    const int before = rowCount();
    if (m_model->structureRevision() == m_revision) {
        if (before > 0) // only the newest shot grows
            emit dataChanged(index(before - 1, 0), index(before - 1, NumColumns - 1));
    } else if (count <= before) {
        reload();
    } else {
        beginInsertRows({}, before, count - 1);
        m_revision = m_model->structureRevision();
        m_rows.assign(static_cast<std::size_t>(count), Row{}); // shots may have been removed as well
        endInsertRows();
        if (before > 0)
            emit dataChanged(index(0, 0), index(before - 1, NumColumns - 1));
    }
}

void ShotTable::reload()
{
    beginResetModel();
    m_revision = m_model->structureRevision();
    m_rows.assign(static_cast<std::size_t>(m_model->numChannels(0)), Row{});
    endResetModel();
}

int ShotTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ShotTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : NumColumns;
}

QVariant ShotTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(index.column() == NumberColumn ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter);
    return role == Qt::DisplayRole ? QVariant(text(index.row(), index.column())) : QVariant();
}

QString ShotTable::text(int shot, int column) const
{
    if (column == NumberColumn)
        return QString::number(shot + 1);
    if (column == TimeColumn)
        return m_model->timestamp(shot).toString(QStringLiteral("dd.MM. HH:mm:ss"));
    const Extremes values = extremes(shot, column - FirstSensorColumn);
    if (values.count == 0)
        return QStringLiteral("–");
    const QLocale locale;
    return tr("%1 … %2").arg(locale.toString(values.minimum, 'g', kDigits),
                             locale.toString(values.maximum, 'g', kDigits));
}

ShotTable::Extremes ShotTable::extremes(int shot, int sensor) const
{
    const SampleList *samples = m_model->measurement(sensor, shot);
    if (!samples)
        return {}; // removed since the last refresh
    Extremes &known = m_rows[static_cast<std::size_t>(shot)][static_cast<std::size_t>(sensor)];
    if (known.count > samples->size())
        known = {};
    for (; known.count < samples->size(); ++known.count) {
        const double value = samples->at(known.count);
        known.minimum = known.count == 0 ? value : std::min(known.minimum, value);
        known.maximum = known.count == 0 ? value : std::max(known.maximum, value);
    }
    return known;
}

QVariant ShotTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == NumberColumn)
        return tr("Nr.");
    if (section == TimeColumn)
        return tr("Aufgezeichnet");
    const int sensor = section - FirstSensorColumn;
    const SensorDescription &description = m_model->sensorDescription();
    QString name;
    if (description.numSensorGroups() > 0 && sensor < description.sensorGroup(0).numSensors())
        name = description.sensorGroup(0).sensorName(sensor);
    if (name.isEmpty())
        name = tr("Sensor %1").arg(sensor + 1);
    return name + QLatin1Char('\n') + tr("Min. … Max.");
}
