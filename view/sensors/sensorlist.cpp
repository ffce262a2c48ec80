#include "view/sensors/sensorlist.h"

#include "model/model.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("SensorList", source);
}

QColor colorOf(const SensorInfo &info, const Model &model, const SensorGroup &group)
{
    const QColor color = info.canColor() ? model.color(info.channel) : group.sensorColor(info.sensor);
    return color.isValid() ? color : QColor(Qt::darkGray);
}

SensorInfo describe(const Model &model, int groupIndex, int sensor)
{
    const SensorGroup &group = model.sensorDescription().sensorGroup(groupIndex);
    SensorInfo info;
    info.group = groupIndex;
    info.sensor = sensor;
    info.channel = groupIndex == 0 && sensor < kNumSensors ? sensor : -1;
    info.ownName = group.sensorName(sensor).simplified();
    info.name = shownSensorName(info.ownName, sensor);
    info.unit = group.sensorUnit(sensor).simplified();
    info.color = colorOf(info, model, group);
    info.limits = sensorLimits(group.sensorMinimum(sensor), group.sensorMaximum(sensor));
    // As in the oscilloscope and the evaluation: a calibrated sensor shows zero here too.
    info.offset = info.channel >= 0 ? model.offset(info.channel) : 0.0;
    return info;
}

} // namespace

bool SensorInfo::operator==(const SensorInfo &other) const
{
    return group == other.group && sensor == other.sensor && channel == other.channel && key == other.key
           && ownName == other.ownName && name == other.name && unit == other.unit && color == other.color
           && limits == other.limits && offset == other.offset;
}

bool SensorList::isDescribed() const
{
    return std::any_of(sensors.cbegin(), sensors.cend(), [](const SensorInfo &sensor) {
        return !sensor.ownName.isEmpty() || !sensor.unit.isEmpty() || sensor.limits.isAny();
    });
}

QString sensorKey(const QString &name, int n)
{
    return n == 0 ? name : QStringLiteral("%1\t%2").arg(name).arg(n + 1); // no name contains a tab
}

SensorList listSensors(const Model &model)
{
    SensorList list;
    QHash<QString, int> seen;
    const SensorDescription &description = model.sensorDescription();
    for (int i = 0; i < description.numSensorGroups(); ++i) {
        const SensorGroup &group = description.sensorGroup(i);
        const QString name = group.name().simplified();
        list.groups.append({name.isEmpty() ? text(QT_TRANSLATE_NOOP("SensorList", "Gruppe %1")).arg(i + 1) : name,
                            list.sensors.size(), group.numSensors()});
        for (int sensor = 0; sensor < group.numSensors(); ++sensor) {
            SensorInfo info = describe(model, i, sensor);
            // Sensors without a name are told apart by their position, independent of the language.
            const QString base = info.ownName.isEmpty() ? QStringLiteral("#%1").arg(sensor + 1) : info.ownName;
            info.key = sensorKey(base, seen[base]++);
            list.sensors.append(info);
        }
    }
    return list;
}
