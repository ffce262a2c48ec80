#include "model/project/project.h"

#include "model/arrayindex.h"
#include "model/indexcheck.h"
#include "model/logging.h"

#include <utility>

void Project::clearDescription()
{
    settings.data = ProjectData();
    settings.hardwareVersion.clear();
    settings.firmwareVersion = QStringLiteral("8.0");
    settings.comment.clear();
    settings.clock = 100;
    settings.unknown.clear();
    settings.unknownInView.clear();
    meta = ProjectMeta();
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        colors[at(sensor)] = defaultSensorColor(sensor);
}

void Project::clearSensors(const char *function)
{
    settings.sensors = SensorDescription();
    settings.sensors.setNumSensorGroups(1);
    SensorGroup *group = settings.sensors.modifiableSensorGroup(0);
    group->setNumSensors(kNumSensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        group->setSensorName(sensor, QString());
        qCDebug(lcModel).noquote().nospace()
            << function << " min=" << group->sensorMinimum(sensor) << " max=" << group->sensorMaximum(sensor);
    }
}

void Project::clearImages(const char *function)
{
    qCDebug(lcModel).noquote().nospace() << function << " clearing images";
    images.clear();
}

void Project::clearShots()
{
    for (int shot = shots.shotCount() - 1; shot >= 0; --shot)
        noteRemoval(shot);
    shots.clear();
    meta.clearShots();
}

bool Project::removeShot(int shot)
{
    noteRemoval(shot);
    if (!shots.remove(shot))
        return false;
    meta.removeShot(shot);
    return true;
}

void Project::noteRemoval(int shot) const
{
    if (notes && shot >= 0 && shot < shots.shotCount())
        notes->shots.push_back({true, shot, shots.shot(shot), meta.shot(shot)});
}

int Project::appendShot(std::array<SampleList, kNumSensors> samples)
{
    int shot = 0;
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        shot = qMax(shot, shots.append(sensor, std::move(samples[at(sensor)])));
    if (notes) {
        StoredShot appended;
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            appended.ids[at(sensor)] = shots.id(sensor, shots.count(sensor) - 1);
        notes->shots.push_back({false, shot, appended, {}});
    }
    return shot;
}

void Project::setLabel(int shot, const QString &label)
{
    const QString before = meta.label(shot);
    meta.setLabel(shot, label);
    if (notes && meta.label(shot) != before)
        notes->labels.push_back({shots.shot(shot).ids, before, meta.label(shot)});
}

int Project::indexOf(const ShotIds &ids) const
{
    int shot = -1;
    for (int sensor = 0; shot < 0 && sensor < kNumSensors; ++sensor)
        shot = shots.indexOf(sensor, ids[at(sensor)]);
    return shot;
}

void Project::takeOut(ShotChange &change)
{
    const int shot = indexOf(change.shot.ids);
    if (shot < 0)
        return;
    change.meta = meta.shot(shot);
    change.shot = shots.take(change.shot.ids);
    meta.removeShot(shot);
}

void Project::putBack(ShotChange &change)
{
    if (!change.isOut())
        return;
    const int shot = qMin(change.index, shots.shotCount());
    shots.insert(shot, change.shot);
    meta.insertShot(shot, change.meta);
    change.shot.samples = {};
    change.meta = {};
}

void Project::resetPhaseNames(const PhaseNames &defaults)
{
    defaultPhaseNames = defaults;
    settings.phaseNames = defaults;
}

bool Project::retranslatePhaseNames(const PhaseNames &defaults)
{
    const PhaseNames before = std::exchange(defaultPhaseNames, defaults);
    bool changed = false;
    for (std::size_t phase = 0; phase < before.size(); ++phase) {
        QString &name = settings.phaseNames[phase];
        // A name that the user chose is no longer the default one and stays.
        if (name == before[phase])
            changed = std::exchange(name, defaults[phase]) != defaults[phase] || changed;
    }
    return changed;
}

SensorGroup *Project::groupWith(int group, int sensor, const char *function)
{
    SensorGroup *found = settings.sensors.modifiableSensorGroup(group);
    return found && isIndex(sensor, at(found->numSensors()), function) ? found : nullptr;
}
