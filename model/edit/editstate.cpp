#include "model/edit/editstate.h"

#include "model/arrayindex.h"
#include "model/project/project.h"

#include <tuple>

namespace {

template <typename State>
auto fieldsOf(State &state)
{
    return std::tie(state.data.name, state.data.number, state.data.user, state.data.date, state.data.customer,
                    state.data.closingForce, state.data.injectionTime, state.data.pressTime, state.data.pressure,
                    state.comment, state.clock, state.sensors, state.offsets, state.markers, state.phaseNames,
                    state.markersAbsolute, state.ranges, state.evaluation, state.colors, state.images, state.imported,
                    state.fingerprints);
}

auto partsOf(const SensorGroup &group, int sensor)
{
    return std::make_tuple(group.sensorName(sensor), group.sensorType(sensor), group.sensorUnit(sensor),
                           group.sensorMinimum(sensor), group.sensorMaximum(sensor));
}

/// Whether both have the same groups with the same number of sensors.
bool isSameShape(const SensorDescription &a, const SensorDescription &b)
{
    bool same = a.numSensorGroups() == b.numSensorGroups();
    for (int group = 0; same && group < a.numSensorGroups(); ++group)
        same = a.sensorGroup(group).numSensors() == b.sensorGroup(group).numSensors()
               && a.sensorGroup(group).name() == b.sensorGroup(group).name();
    return same;
}

bool isSame(const SensorDescription &a, const SensorDescription &b)
{
    bool same = isSameShape(a, b);
    for (int group = 0; same && group < a.numSensorGroups(); ++group)
        for (int sensor = 0; same && sensor < a.sensorGroup(group).numSensors(); ++sensor)
            same = partsOf(a.sensorGroup(group), sensor) == partsOf(b.sensorGroup(group), sensor);
    return same;
}

bool isSame(const ImageStore &a, const ImageStore &b)
{
    bool same = true;
    for (int image = 0; same && image < kNumProjectImages; ++image)
        same = a.isSame(image, b);
    return same;
}

template <typename Field>
bool isSame(const Field &a, const Field &b)
{
    return a == b;
}

template <typename Field>
void take(Field &field, const Field &from, const Field &to)
{
    if (!(from == to))
        field = to;
}

// One by one, as a field may have changed since without being a step.
template <typename Field, std::size_t Count>
void take(std::array<Field, Count> &fields, const std::array<Field, Count> &from, const std::array<Field, Count> &to);

void take(SensorMeta &field, const SensorMeta &from, const SensorMeta &to)
{
    take(field.startThreshold, from.startThreshold, to.startThreshold);
    take(field.stopThreshold, from.stopThreshold, to.stopThreshold);
    take(field.chosenQuantity, from.chosenQuantity, to.chosenQuantity);
    take(field.quantities, from.quantities, to.quantities);
}

void takeSensor(SensorGroup &field, const SensorGroup &from, const SensorGroup &to, int sensor)
{
    if (from.sensorName(sensor) != to.sensorName(sensor))
        field.setSensorName(sensor, to.sensorName(sensor));
    if (from.sensorType(sensor) != to.sensorType(sensor))
        field.setSensorType(sensor, to.sensorType(sensor));
    if (from.sensorUnit(sensor) != to.sensorUnit(sensor))
        field.setSensorUnit(sensor, to.sensorUnit(sensor));
    if (from.sensorMinimum(sensor) != to.sensorMinimum(sensor))
        field.setSensorMinimum(sensor, to.sensorMinimum(sensor));
    if (from.sensorMaximum(sensor) != to.sensorMaximum(sensor))
        field.setSensorMaximum(sensor, to.sensorMaximum(sensor));
}

void take(SensorDescription &field, const SensorDescription &from, const SensorDescription &to)
{
    if (isSame(from, to))
        return;
    if (!isSameShape(from, to) || !isSameShape(field, to)) {
        field = to;
        return;
    }
    for (int group = 0; group < to.numSensorGroups(); ++group)
        for (int sensor = 0; sensor < to.sensorGroup(group).numSensors(); ++sensor)
            takeSensor(*field.modifiableSensorGroup(group), from.sensorGroup(group), to.sensorGroup(group), sensor);
}

void take(ImageStore &field, const ImageStore &from, const ImageStore &to)
{
    for (int image = 0; image < kNumProjectImages; ++image)
        if (!from.isSame(image, to))
            field.take(image, to);
}

template <typename Field, std::size_t Count>
void take(std::array<Field, Count> &fields, const std::array<Field, Count> &from, const std::array<Field, Count> &to)
{
    for (std::size_t i = 0; i < Count; ++i)
        take(fields[i], from[i], to[i]);
}

template <typename Fields, typename Others, std::size_t... I>
void takeEach(const Fields &fields, const Others &from, const Others &to, std::index_sequence<I...> /*all*/)
{
    (take(std::get<I>(fields), std::get<I>(from), std::get<I>(to)), ...);
}

template <typename Fields, std::size_t... I>
bool isEachSame(const Fields &a, const Fields &b, std::index_sequence<I...> /*all*/)
{
    return (isSame(std::get<I>(a), std::get<I>(b)) && ...);
}

template <typename Fields>
using IndicesOf = std::make_index_sequence<std::tuple_size_v<Fields>>;

} // namespace

EditState EditState::of(const Project &project, const ImportedFiles &imported)
{
    const ProjectSettings &settings = project.settings;
    EditState state{settings.data,
                    settings.comment,
                    settings.clock,
                    settings.sensors,
                    settings.offsets,
                    settings.markers,
                    {},
                    settings.markersAbsolute,
                    {},
                    project.meta.sensors,
                    project.colors,
                    project.images,
                    imported,
                    project.meta.importedFiles};
    for (std::size_t phase = 0; phase < state.phaseNames.size(); ++phase)
        if (settings.phaseNames[phase] != project.defaultPhaseNames[phase])
            state.phaseNames[phase] = settings.phaseNames[phase];
    for (std::size_t sensor = 0; sensor < state.ranges.size(); ++sensor)
        state.ranges[sensor] = {settings.osziMinimum[sensor], settings.osziMaximum[sensor]};
    return state;
}

void EditState::applyTo(Project &project, ImportedFiles &importedFiles) const
{
    ProjectSettings &settings = project.settings;
    settings.data = data;
    settings.comment = comment;
    settings.clock = clock;
    settings.sensors = sensors;
    settings.offsets = offsets;
    settings.markers = markers;
    settings.markersAbsolute = markersAbsolute;
    for (std::size_t phase = 0; phase < phaseNames.size(); ++phase)
        settings.phaseNames[phase] = phaseNames[phase].value_or(project.defaultPhaseNames[phase]);
    for (std::size_t sensor = 0; sensor < ranges.size(); ++sensor)
        std::tie(settings.osziMinimum[sensor], settings.osziMaximum[sensor]) = ranges[sensor];
    project.meta.sensors = evaluation;
    project.colors = colors;
    project.images = images;
    importedFiles = imported;
    project.meta.importedFiles = fingerprints;
}

void EditState::takeDifferences(const EditState &from, const EditState &to)
{
    const auto fields = fieldsOf(*this);
    takeEach(fields, fieldsOf(from), fieldsOf(to), IndicesOf<decltype(fieldsOf(*this))>());
}

bool operator==(const EditState &a, const EditState &b)
{
    const auto fields = fieldsOf(a);
    return isEachSame(fields, fieldsOf(b), IndicesOf<decltype(fieldsOf(a))>());
}
