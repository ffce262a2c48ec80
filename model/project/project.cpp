#include "model/project/project.h"

#include "model/arrayindex.h"
#include "model/indexcheck.h"
#include "model/logging.h"

#include <algorithm>
#include <utility>
#include <vector>

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

int Project::removeShots(int first, int count)
{
    const int last = std::min(count, shots.shotCount() - first) + first - 1;
    for (int shot = last; shot >= first; --shot)
        noteRemoval(shot);
    const int removed = shots.remove(first, count);
    if (removed > 0)
        meta.removeShots(first, removed);
    return removed;
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

void Project::takeOut(const ShotChanges &changes)
{
    for (auto next = changes.begin(); next != changes.end();)
        next = takeOutRun(next, changes.end());
}

Project::ChangeIterator Project::takeOutRun(ChangeIterator first, ChangeIterator end)
{
    const int last = indexOf((*first)->shot.ids);
    int shot = last;
    auto next = first;
    for (; next != end && shot >= 0 && shots.shot(shot).ids == (*next)->shot.ids; ++next, --shot) {
        (*next)->meta = meta.shot(shot);
        (*next)->shot = shots.shot(shot);
    }
    if (next == first) {
        takeOutOne(**first, last);
        return ++next;
    }
    shots.remove(shot + 1, last - shot);
    meta.removeShots(shot + 1, last - shot);
    return next;
}

/// A shot that is gone, or whose measurements do not all have the same index.
void Project::takeOutOne(ShotChange &change, int shot)
{
    if (shot < 0)
        return;
    change.meta = meta.shot(shot);
    change.shot = shots.take(change.shot.ids);
    meta.removeShots(shot, 1);
}

void Project::putBack(const ShotChanges &changes)
{
    for (auto next = changes.begin(); next != changes.end();)
        next = putBackRun(next, changes.end());
}

Project::ChangeIterator Project::putBackRun(ChangeIterator first, ChangeIterator end)
{
    std::vector<StoredShot> samples;
    std::vector<ShotMeta> others;
    auto next = first;
    for (; next != end && (*next)->index - (*first)->index == next - first && (*next)->isOut(); ++next) {
        samples.push_back((*next)->shot);
        others.push_back(std::exchange((*next)->meta, {}));
        (*next)->shot.samples = {};
    }
    if (next == first) // not out
        return ++next;
    const int shot = std::min((*first)->index, shots.shotCount());
    shots.insert(shot, samples);
    meta.insertShots(shot, others);
    return next;
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
