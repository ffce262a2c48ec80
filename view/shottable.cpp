#include "view/shottable.h"

#include "model/model.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr int kDigits = 6;
constexpr int kColumnsPerSensor = 2;

int sensorOfColumn(int column)
{
    return (column - ShotTable::FirstSensorColumn) / kColumnsPerSensor;
}

bool isMaximumColumn(int column)
{
    return (column - ShotTable::FirstSensorColumn) % kColumnsPerSensor == 1;
}

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
    if (m_model->structureRevision() != m_revision) {
        reload();
    } else if (!m_rows.empty()) { // only the newest shot grows
        const int last = rowCount() - 1;
        emit dataChanged(index(last, 0), index(last, columnCount() - 1));
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
    return parent.isValid() ? 0 : FirstSensorColumn + kNumSensors * kColumnsPerSensor;
}

QVariant ShotTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(index.column() == TimeColumn ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(text(index.row(), index.column())) : QVariant();
}

QString ShotTable::text(int shot, int column) const
{
    if (column == NumberColumn)
        return QString::number(shot + 1);
    if (column == TimeColumn)
        return m_model->timestamp(shot).toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
    const Extremes values = extremes(shot, sensorOfColumn(column));
    if (values.count == 0)
        return QStringLiteral("–");
    return QLocale().toString(isMaximumColumn(column) ? values.maximum : values.minimum, 'g', kDigits);
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
    const int sensor = sensorOfColumn(section);
    const SensorDescription &description = m_model->sensorDescription();
    QString name = tr("Sensor %1").arg(sensor + 1);
    if (description.numSensorGroups() > 0 && sensor < description.sensorGroup(0).numSensors()
        && !description.sensorGroup(0).sensorName(sensor).isEmpty())
        name = description.sensorGroup(0).sensorName(sensor);
    return isMaximumColumn(section) ? tr("%1\nMax.").arg(name) : tr("%1\nMin.").arg(name);
}
