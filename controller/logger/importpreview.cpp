#include "controller/logger/importpreview.h"

#include "model/blackbox/blackboxfile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

constexpr qint64 kHeader = 8192; // bytes; the box writes less than 1000

/// What a file says before its samples, in whole lines.
QByteArray headerOf(const QString &fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QByteArray header = file.read(kHeader);
    const int data = header.indexOf("[data]");
    header.truncate(data >= 0 ? data : header.lastIndexOf('\n') + 1);
    // Without its first section, which differs for every version of the box.
    const int sensors = header.indexOf("[sensors]");
    return sensors >= 0 ? header.mid(sensors) : QByteArray();
}

bool areLimitsKnown(const SensorGroup &group, int sensor)
{
    SensorGroup fresh;
    fresh.setNumSensors(1);
    return group.sensorMinimum(sensor) != fresh.sensorMinimum(0)
           || group.sensorMaximum(sensor) != fresh.sensorMaximum(0);
}

QString limits(const SensorGroup &group, int sensor)
{
    const QLocale locale;
    return locale.toString(group.sensorMinimum(sensor)) + QStringLiteral(" … ")
           + locale.toString(group.sensorMaximum(sensor));
}

} // namespace

ImportPreview::ImportPreview(const SensorDescription &project)
    : m_before(project)
    , m_after(project)
{}

void ImportPreview::addFile(const QString &fileName)
{
    QByteArray header = headerOf(fileName);
    if (header.isEmpty() || header == m_header)
        return;
    m_isAmbiguous = m_isAmbiguous || !m_header.isEmpty();
    m_header = header;
    QBuffer buffer(&header);
    if (buffer.open(QIODevice::ReadOnly))
        m_after = readBlackBox(buffer, m_after, [](qint64) {}).sensors;
}

QStringList ImportPreview::changes() const
{
    QStringList lines;
    if (m_before.numSensorGroups() == 0 || m_after.numSensorGroups() == 0)
        return lines;
    const SensorGroup &before = m_before.sensorGroup(0);
    const SensorGroup &after = m_after.sensorGroup(0);
    for (int sensor = 0; sensor < std::min({kNumSensors, before.numSensors(), after.numSensors()}); ++sensor) {
        const QString line = change(sensor, before, after);
        if (!line.isEmpty())
            lines.append(line);
    }
    return lines;
}

QString ImportPreview::change(int sensor, const SensorGroup &before, const SensorGroup &after)
{
    QStringList parts;
    const QString name = before.sensorName(sensor);
    if (!name.isEmpty() && name != after.sensorName(sensor))
        parts += tr("Name „%1“ wird „%2“").arg(name, after.sensorName(sensor));
    const QString unit = before.sensorUnit(sensor);
    if (!unit.isEmpty() && unit != after.sensorUnit(sensor))
        parts += tr("Einheit „%1“ wird „%2“").arg(unit, after.sensorUnit(sensor));
    if (areLimitsKnown(before, sensor) && limits(before, sensor) != limits(after, sensor))
        parts += tr("Grenzen %1 werden %2").arg(limits(before, sensor), limits(after, sensor));
    return parts.isEmpty() ? QString()
                           : tr("Sensor %1: %2").arg(QString::number(sensor + 1), parts.join(QStringLiteral("; ")));
}
