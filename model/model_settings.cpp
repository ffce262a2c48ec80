#include "model/indexcheck.h"
#include "model/model.h"

#include <cmath>

namespace {

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

} // namespace

double Model::offset(int sensor) const
{
    return isIndex(sensor, m_offsets.size(), Q_FUNC_INFO) ? m_offsets[at(sensor)] : 0.0;
}

void Model::setOffset(int sensor, double offset)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " sensor=" << sensor << " offset=" << offset;
    if (!isIndex(sensor, m_offsets.size(), Q_FUNC_INFO))
        return;
    m_offsets[at(sensor)] = finiteOrZero(offset);
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::resetOffsets()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_offsets.fill(0.0);
    announceProjectChanged(Q_FUNC_INFO);
}

QColor Model::color(int sensor) const
{
    return isIndex(sensor, m_colors.size(), Q_FUNC_INFO) ? m_colors[at(sensor)] : QColor();
}

void Model::setColor(uint8_t sensor, const QColor &color)
{
    qCDebug(lcModel) << Q_FUNC_INFO << sensor << color;
    if (!isIndex(sensor, m_colors.size(), Q_FUNC_INFO))
        return;
    m_colors[sensor] = color;
    announceProjectChanged(Q_FUNC_INFO);
}

QString Model::phaseName(int phase) const
{
    if (phase >= 0 && phase < kNumPhases)
        return m_phaseNames[at(phase)];
    qCDebug(lcModel) << Q_FUNC_INFO << "ERROR: index>=size !";
    return {};
}

void Model::setPhaseName(int phase, const QString &name)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " phase=" << phase << " name=" << name;
    if (!isIndex(phase, m_phaseNames.size(), Q_FUNC_INFO))
        return;
    m_phaseNames[at(phase)] = name;
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::retranslatePhaseNames()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    const std::array<QString, kNumPhases> before = m_defaultPhaseNames;
    const std::array<QString, kNumPhases> names = m_phaseNames;
    resetPhaseNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] != before[i])
            m_phaseNames[i] = names[i];
    }
    if (m_phaseNames != names)
        announceProjectChanged(Q_FUNC_INFO);
}

int Model::verticalMarker(int index) const
{
    return isIndex(index, m_markers.size(), Q_FUNC_INFO) ? m_markers[at(index)] : -1;
}

void Model::setVerticalMarkerAbsolute(int index, int pos)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " index=" << index << " pos=" << pos;
    if (!isIndex(index, m_markers.size(), Q_FUNC_INFO))
        return;
    m_markers = withMarkerAt(m_markers, index, pos);
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setVerticalMarkerRelative(int index, int pos)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " index=" << index << " pos=" << pos;
    if (!isIndex(index, m_markers.size(), Q_FUNC_INFO))
        return;
    m_markers = withMarkerDistance(m_markers, index, pos);
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setMarkersAbsolute(bool absolute)
{
    qCDebug(lcModel) << Q_FUNC_INFO << absolute;
    m_markersAbsolute = absolute;
    announceProjectChanged(Q_FUNC_INFO);
}

double Model::osziMinimum(int sensor) const
{
    return isIndex(sensor, m_osziMinimum.size(), Q_FUNC_INFO) ? m_osziMinimum[at(sensor)] : 0.0;
}

double Model::osziMaximum(int sensor) const
{
    return isIndex(sensor, m_osziMaximum.size(), Q_FUNC_INFO) ? m_osziMaximum[at(sensor)] : 0.0;
}

void Model::setOsziMinimum(int sensor, double value)
{
    if (!isIndex(sensor, m_osziMinimum.size(), Q_FUNC_INFO))
        return;
    m_osziMinimum[at(sensor)] = finiteOrZero(value);
}

void Model::setOsziMaximum(int sensor, double value)
{
    if (!isIndex(sensor, m_osziMaximum.size(), Q_FUNC_INFO))
        return;
    m_osziMaximum[at(sensor)] = finiteOrZero(value);
}

void Model::setProjectData(const ProjectData &data)
{
    qCDebug(lcModel) << Q_FUNC_INFO << data;
    m_projectData = data;
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setComment(const QString &comment)
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_comment = comment;
    announceProjectChanged(Q_FUNC_INFO);
}

QPixmap Model::image(int index) const
{
    return isIndex(index, m_images.size(), Q_FUNC_INFO) ? m_images[at(index)] : QPixmap();
}

void Model::setImage(int index, const QPixmap &image)
{
    qCDebug(lcModel) << Q_FUNC_INFO << index << image.size();
    if (!isIndex(index, m_images.size(), Q_FUNC_INFO))
        return;
    m_images[at(index)] = image;
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setSensorDescription(const SensorDescription &description)
{
    qCDebug(lcModel) << Q_FUNC_INFO << description.numSensorGroups();
    m_sensorDescription = description;
    ++m_changes;
}

void Model::setDeviceDescription(const DeviceDescription &description)
{
    qCDebug(lcModel) << Q_FUNC_INFO << description.hardwareVersion << description.firmwareVersion;
    m_deviceDescription = description;
    m_hardwareVersion = description.hardwareVersion;
    m_firmwareVersion = description.firmwareVersion;
    ++m_changes;
}

void Model::setSensorName(int sensor, const QString &name)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " sensor=" << sensor << " name=" << name;
    SensorGroup *group = m_sensorDescription.modifiableSensorGroup(0);
    if (!group || !isIndex(sensor, at(group->numSensors()), Q_FUNC_INFO))
        return;
    group->setSensorName(sensor, name);
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setSensorMinimum(int group, int sensor, double minimum)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " val=" << minimum;
    SensorGroup *sensors = m_sensorDescription.modifiableSensorGroup(group);
    if (!sensors || !isIndex(sensor, at(sensors->numSensors()), Q_FUNC_INFO))
        return;
    sensors->setSensorMinimum(sensor, finiteOrZero(minimum));
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setSensorMaximum(int group, int sensor, double maximum)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " val=" << maximum;
    SensorGroup *sensors = m_sensorDescription.modifiableSensorGroup(group);
    if (!sensors || !isIndex(sensor, at(sensors->numSensors()), Q_FUNC_INFO))
        return;
    sensors->setSensorMaximum(sensor, finiteOrZero(maximum));
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setClock(int milliseconds)
{
    qCDebug(lcModel) << Q_FUNC_INFO << milliseconds;
    m_clock = qBound(1, milliseconds, kMaxClock);
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setFileList(const QStringList &files)
{
    qCDebug(lcModel) << Q_FUNC_INFO << files;
    m_fileList = files;
    m_importedFiles.clear();
    for (const QString &file : files)
        rememberImported(file);
}

/// A file that is gone has no fingerprint; remembered, that would be the one of every unreadable file.
void Model::rememberImported(const QString &file)
{
    const QByteArray fingerprint = blackBoxFingerprint(file);
    if (!fingerprint.isEmpty())
        m_importedFiles.insert(fingerprint);
}
