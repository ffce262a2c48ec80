#include "model/sensordescription.h"

#include "model/logging.h"

#include <QCoreApplication>

#include <array>

QColor defaultSensorColor(int position)
{
    static const std::array<QColor, kNumSensors> colors{QColor(Qt::darkRed), QColor(Qt::darkGreen),
                                                        QColor(Qt::darkBlue), QColor(QStringLiteral("darkorange")),
                                                        QColor(Qt::darkCyan)};
    return position >= 0 && position < kNumSensors ? colors[static_cast<std::size_t>(position)] : QColor();
}

QString shownSensorName(const QString &ownName, int sensor)
{
    return ownName.isEmpty() ? QCoreApplication::translate("SensorDescription", "Sensor %1").arg(sensor + 1) : ownName;
}

QString shownSensorName(const SensorDescription &description, int sensor)
{
    const bool isDescribed =
        description.numSensorGroups() > 0 && sensor >= 0 && sensor < description.sensorGroup(0).numSensors();
    return shownSensorName(isDescribed ? description.sensorGroup(0).sensorName(sensor) : QString(), sensor);
}

void SensorGroup::setNumSensors(int n)
{
    const int count = qBound(0, n, kMaxSensors);
    if (count < numSensors())
        m_sensors.clear(); // fewer sensors mean another group: none of the entries are kept
    m_sensors.reserve(count);
    while (numSensors() < count) {
        Sensor sensor;
        sensor.color = defaultSensorColor(numSensors());
        m_sensors.append(sensor);
    }
}

const SensorGroup::Sensor *SensorGroup::find(int i, const char *function) const
{
    if (i >= 0 && i < numSensors())
        return &m_sensors.at(i);
    qCDebug(lcModel) << function << "ERROR: index >= numSens !!";
    return nullptr;
}

SensorGroup::Sensor *SensorGroup::find(int i, const char *function)
{
    return std::as_const(*this).find(i, function) ? &m_sensors[i] : nullptr;
}

QString SensorGroup::sensorName(int i) const
{
    const Sensor *sensor = find(i, Q_FUNC_INFO);
    return sensor ? sensor->name : QString();
}

void SensorGroup::setSensorName(int i, const QString &name)
{
    if (Sensor *sensor = find(i, Q_FUNC_INFO))
        sensor->name = name;
}

QString SensorGroup::sensorType(int i) const
{
    const Sensor *sensor = find(i, Q_FUNC_INFO);
    return sensor ? sensor->type : QString();
}

void SensorGroup::setSensorType(int i, const QString &type)
{
    if (Sensor *sensor = find(i, Q_FUNC_INFO))
        sensor->type = type;
}

QString SensorGroup::sensorUnit(int i) const
{
    const Sensor *sensor = find(i, Q_FUNC_INFO);
    return sensor ? sensor->unit : QString();
}

void SensorGroup::setSensorUnit(int i, const QString &unit)
{
    if (Sensor *sensor = find(i, Q_FUNC_INFO))
        sensor->unit = unit;
}

double SensorGroup::sensorValue(int i) const
{
    const Sensor *sensor = find(i, Q_FUNC_INFO);
    return sensor ? sensor->value : 0.0;
}

void SensorGroup::setSensorValue(int i, double value)
{
    if (Sensor *sensor = find(i, Q_FUNC_INFO))
        sensor->value = value;
}

double SensorGroup::sensorMinimum(int i) const
{
    const Sensor *sensor = find(i, Q_FUNC_INFO);
    return sensor ? sensor->minimum : 0.0;
}

void SensorGroup::setSensorMinimum(int i, double minimum)
{
    if (Sensor *sensor = find(i, Q_FUNC_INFO))
        sensor->minimum = minimum;
}

double SensorGroup::sensorMaximum(int i) const
{
    const Sensor *sensor = find(i, Q_FUNC_INFO);
    return sensor ? sensor->maximum : 0.0;
}

void SensorGroup::setSensorMaximum(int i, double maximum)
{
    if (Sensor *sensor = find(i, Q_FUNC_INFO))
        sensor->maximum = maximum;
}

QColor SensorGroup::sensorColor(int i) const
{
    const Sensor *sensor = find(i, Q_FUNC_INFO);
    return sensor ? sensor->color : QColor();
}

void SensorGroup::SetSensorColor(int i, const QColor &color)
{
    if (Sensor *sensor = find(i, Q_FUNC_INFO))
        sensor->color = color;
}

void SensorDescription::setNumSensorGroups(int n)
{
    m_groups.resize(qBound(0, n, kMaxGroups));
}

const SensorGroup &SensorDescription::sensorGroup(int i) const
{
    static const SensorGroup none;
    if (i >= 0 && i < numSensorGroups())
        return m_groups.at(i);
    qCDebug(lcModel) << Q_FUNC_INFO << "ERROR: i>=numGroups";
    return none;
}

SensorGroup *SensorDescription::modifiableSensorGroup(int i)
{
    if (i >= 0 && i < numSensorGroups())
        return &m_groups[i];
    qCDebug(lcModel) << Q_FUNC_INFO << "ERROR: i>=numGroups";
    return nullptr;
}

void SensorDescription::setSensorMinimum(int group, int sensor, double minimum)
{
    if (SensorGroup *sensors = modifiableSensorGroup(group))
        sensors->setSensorMinimum(sensor, minimum);
}

void SensorDescription::setSensorMaximum(int group, int sensor, double maximum)
{
    if (SensorGroup *sensors = modifiableSensorGroup(group))
        sensors->setSensorMaximum(sensor, maximum);
}
