#include "model/project/projectmeta.h"

#include <QFileInfo>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>

namespace {

constexpr int kMetaVersion = 1;
constexpr int kMostQuantities = 1000; // of one sensor
constexpr int kLongestOrigin = 5000;  // characters of each of its texts
constexpr int kMostImported = 100000;
constexpr int kLongestPeriod = 3600000; // ms
constexpr int kLongestFingerprint = 100;

const QString kVersionKey = QStringLiteral("metaVersion");
const QString kSensorsKey = QStringLiteral("sensors");
const QString kShotsKey = QStringLiteral("shots");
const QString kStartKey = QStringLiteral("startThreshold");
const QString kStopKey = QStringLiteral("stopThreshold");
const QString kChosenKey = QStringLiteral("chosenQuantity");
const QString kQuantitiesKey = QStringLiteral("quantities");
const QString kQuantityKey = QStringLiteral("quantity");
const QString kShownKey = QStringLiteral("shown");
const QString kLowerKey = QStringLiteral("lowerLimit");
const QString kUpperKey = QStringLiteral("upperLimit");
const QString kCheckKey = QStringLiteral("check");
const QString kLabelKey = QStringLiteral("label");
const QString kTimeKey = QStringLiteral("time");
const QString kOriginKey = QStringLiteral("origin");
const QString kBoxKey = QStringLiteral("box");
const QString kFileKey = QStringLiteral("file");
const QString kHashKey = QStringLiteral("sha1");
// Later additions. A program that does not know them reads all the rest, so the version stays the same.
const QString kPeriodKey = QStringLiteral("period");
const QString kMissingKey = QStringLiteral("missing");
const QString kUnitKey = QStringLiteral("unit");
const QString kUnitOfKey = QStringLiteral("unitOf");
const QString kNameKey = QStringLiteral("name");
const QString kMinimumKey = QStringLiteral("min");
const QString kMaximumKey = QStringLiteral("max");
const QString kImportedKey = QStringLiteral("imported");

std::optional<double> toLimit(const QJsonValue &value)
{
    return value.isDouble() && std::isfinite(value.toDouble()) ? std::optional(value.toDouble()) : std::nullopt;
}

QJsonObject toJson(const QuantityMeta &quantity)
{
    QJsonObject object{{kQuantityKey, quantity.key}, {kShownKey, quantity.isShown}};
    if (quantity.lowerLimit)
        object.insert(kLowerKey, *quantity.lowerLimit);
    if (quantity.upperLimit)
        object.insert(kUpperKey, *quantity.upperLimit);
    return object;
}

QJsonObject toJson(const ShotOrigin &origin)
{
    QJsonObject object{{kFileKey, origin.file}, {kHashKey, QString::fromLatin1(origin.hash.toHex())}};
    if (!origin.box.isEmpty())
        object.insert(kBoxKey, origin.box);
    return object;
}

ShotOrigin toOrigin(const QJsonObject &object)
{
    const auto text = [&object](const QString &key) { return object.value(key).toString().left(kLongestOrigin); };
    return {text(kBoxKey), text(kFileKey), QByteArray::fromHex(text(kHashKey).toLatin1())};
}

QJsonObject toJson(const SensorMeta &sensor, const SensorUnit &unit)
{
    QJsonArray quantities;
    for (const QuantityMeta &quantity : sensor.quantities)
        quantities.append(toJson(quantity));
    QJsonObject object = sensor.others;
    object.insert(kStartKey, sensor.startThreshold);
    object.insert(kStopKey, sensor.stopThreshold);
    object.insert(kChosenKey, sensor.chosenQuantity);
    object.insert(kQuantitiesKey, quantities);
    if (unit.unit.isEmpty())
        return object;
    object.insert(kUnitKey, unit.unit);
    object.insert(kUnitOfKey,
                  QJsonObject{{kNameKey, unit.name}, {kMinimumKey, unit.minimum}, {kMaximumKey, unit.maximum}});
    return object;
}

template <typename Value>
Value elementOf(const std::vector<Value> &values, std::size_t index)
{
    return index < values.size() ? values[index] : Value();
}

QJsonObject shotToJson(const ProjectMeta &meta, std::size_t shot, quint32 check)
{
    QJsonObject object = elementOf(meta.shotOthers, shot);
    object.insert(kCheckKey, double(check));
    const QString label = elementOf(meta.labels, shot);
    if (!label.isEmpty())
        object.insert(kLabelKey, label);
    const QDateTime timestamp = elementOf(meta.timestamps, shot);
    if (timestamp.isValid())
        object.insert(kTimeKey, timestamp.toUTC().toString(Qt::ISODateWithMs));
    const int period = elementOf(meta.periods, shot);
    if (period > 0)
        object.insert(kPeriodKey, period);
    const int missing = elementOf(meta.missingValues, shot);
    if (missing > 0)
        object.insert(kMissingKey, missing);
    const ShotOrigin origin = elementOf(meta.origins, shot);
    if (origin.isKnown())
        object.insert(kOriginKey, toJson(origin));
    return object;
}

template <typename Value>
void setElement(std::vector<Value> &values, std::size_t index, const Value &value)
{
    if (index >= values.size())
        values.resize(index + 1);
    values[index] = value;
}

template <typename Value>
void removeElements(std::vector<Value> &values, std::size_t index, std::size_t count)
{
    const std::size_t begin = std::min(index, values.size());
    const std::size_t end = begin + std::min(count, values.size() - begin);
    values.erase(values.begin() + static_cast<std::ptrdiff_t>(begin),
                 values.begin() + static_cast<std::ptrdiff_t>(end));
}

template <typename Value>
void keepElements(std::vector<Value> &values, std::size_t count)
{
    values.resize(std::min(count, values.size()));
}

QJsonObject without(QJsonObject object, std::initializer_list<QString> known)
{
    for (const QString &key : known)
        object.remove(key);
    return object;
}

SensorUnit toUnit(const QJsonObject &object)
{
    const QJsonObject sensor = object.value(kUnitOfKey).toObject();
    return {object.value(kUnitKey).toString().left(SensorGroup::kLongestUnit), sensor.value(kNameKey).toString(),
            sensor.value(kMinimumKey).toDouble(), sensor.value(kMaximumKey).toDouble()};
}

// A list that ends before the place does not grow by values at its end that say nothing.
template <typename Value>
void insertElements(std::vector<Value> &values, std::size_t index, const std::vector<ShotMeta> &shots,
                    Value ShotMeta::*part)
{
    if (index < values.size()) {
        values.insert(values.begin() + static_cast<std::ptrdiff_t>(index), shots.size(), Value());
        for (std::size_t i = 0; i < shots.size(); ++i)
            values[index + i] = shots[i].*part;
        return;
    }
    for (std::size_t i = 0; i < shots.size(); ++i)
        if (!(shots[i].*part == Value()))
            setElement(values, index + i, shots[i].*part);
}

SensorMeta toSensor(const QJsonObject &object)
{
    SensorMeta sensor;
    sensor.startThreshold = toLimit(object.value(kStartKey)).value_or(0.0);
    sensor.stopThreshold = toLimit(object.value(kStopKey)).value_or(0.0);
    sensor.chosenQuantity = object.value(kChosenKey).toString();
    sensor.others = without(object, {kStartKey, kStopKey, kChosenKey, kQuantitiesKey, kUnitKey, kUnitOfKey});
    const QJsonArray quantities = object.value(kQuantitiesKey).toArray();
    for (int i = 0; i < std::min(kMostQuantities, quantities.size()); ++i) {
        const QJsonObject settings = quantities.at(i).toObject();
        const QString key = settings.value(kQuantityKey).toString();
        if (key.isEmpty() || sensor.find(key))
            continue;
        sensor.quantities.push_back({key, settings.value(kShownKey).toBool(), toLimit(settings.value(kLowerKey)),
                                     toLimit(settings.value(kUpperKey))});
    }
    return sensor;
}

void readShots(ProjectMeta &meta, const QJsonArray &shots, const ShotChecks &checks)
{
    const std::size_t count = std::min(checks.size(), static_cast<std::size_t>(shots.size()));
    meta.labels.resize(count);
    meta.timestamps.resize(count);
    meta.origins.resize(count);
    meta.periods.resize(count);
    meta.missingValues.resize(count);
    meta.shotOthers.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const QJsonObject shot = shots.at(static_cast<int>(i)).toObject();
        // Another check number: the project was changed without this file, and all this belongs to another shot.
        if (shot.value(kCheckKey).toDouble(-1.0) != double(checks[i]))
            continue;
        meta.labels[i] = shot.value(kLabelKey).toString().left(ProjectMeta::kLongestLabel);
        const QString time = shot.value(kTimeKey).toString();
        const QDateTime timestamp = QDateTime::fromString(time, Qt::ISODateWithMs);
        meta.timestamps[i] = timestamp.isValid() ? timestamp.toLocalTime() : QDateTime();
        meta.origins[i] = toOrigin(shot.value(kOriginKey).toObject());
        meta.periods[i] = std::clamp(shot.value(kPeriodKey).toInt(), 0, kLongestPeriod);
        meta.missingValues[i] = std::max(0, shot.value(kMissingKey).toInt());
        meta.shotOthers[i] = without(shot, {kCheckKey, kLabelKey, kTimeKey, kPeriodKey, kMissingKey, kOriginKey});
    }
}

QSet<QByteArray> toFingerprints(const QJsonArray &texts)
{
    QSet<QByteArray> fingerprints;
    for (int i = 0; i < std::min(kMostImported, texts.size()); ++i) {
        const QByteArray fingerprint = QByteArray::fromHex(texts.at(i).toString().toLatin1());
        if (!fingerprint.isEmpty() && fingerprint.size() <= kLongestFingerprint)
            fingerprints.insert(fingerprint);
    }
    return fingerprints;
}

QJsonArray toJson(const QSet<QByteArray> &fingerprints)
{
    QStringList texts;
    for (const QByteArray &fingerprint : fingerprints)
        texts.append(QString::fromLatin1(fingerprint.toHex()));
    texts.sort(); // the same project gives the same file
    return QJsonArray::fromStringList(texts);
}

/// Nothing if that is too long.
QJsonObject readRoot(QIODevice &source)
{
    const QByteArray text = source.read(kLargestMeta + 1);
    return text.size() > kLargestMeta ? QJsonObject() : QJsonDocument::fromJson(text).object();
}

/// What follows the point is a version that only adds to what is there.
int versionOf(const QJsonObject &root)
{
    const double version = root.value(kVersionKey).toDouble();
    return version >= 1.0 && version < 1e6 ? static_cast<int>(version) : 0;
}

} // namespace

const QuantityMeta *SensorMeta::find(const QString &key) const
{
    const auto found = std::find_if(quantities.begin(), quantities.end(),
                                    [&key](const QuantityMeta &quantity) { return quantity.key == key; });
    return found == quantities.end() ? nullptr : &*found;
}

QuantityMeta &SensorMeta::at(const QString &key)
{
    const auto found = std::find_if(quantities.begin(), quantities.end(),
                                    [&key](const QuantityMeta &quantity) { return quantity.key == key; });
    if (found != quantities.end())
        return *found;
    quantities.push_back({key, false, std::nullopt, std::nullopt});
    return quantities.back();
}

bool ProjectMeta::isBlank() const
{
    return sensors == ProjectMeta().sensors
           && std::all_of(labels.begin(), labels.end(), [](const QString &label) { return label.isEmpty(); })
           && std::none_of(timestamps.begin(), timestamps.end(),
                           [](const QDateTime &timestamp) { return timestamp.isValid(); })
           && std::none_of(origins.begin(), origins.end(), [](const ShotOrigin &origin) { return origin.isKnown(); })
           && std::all_of(periods.begin(), periods.end(), [](int period) { return period == 0; })
           && std::all_of(missingValues.begin(), missingValues.end(), [](int count) { return count == 0; })
           && std::all_of(shotOthers.begin(), shotOthers.end(), [](const QJsonObject &shot) { return shot.isEmpty(); })
           && std::all_of(units.begin(), units.end(), [](const SensorUnit &unit) { return unit.unit.isEmpty(); })
           && importedFiles.isEmpty() && others.isEmpty();
}

QString ProjectMeta::label(int shot) const
{
    return elementOf(labels, static_cast<std::size_t>(shot));
}

void ProjectMeta::setLabel(int shot, const QString &label)
{
    setElement(labels, static_cast<std::size_t>(shot), label.left(kLongestLabel));
}

QDateTime ProjectMeta::timestamp(int shot) const
{
    return elementOf(timestamps, static_cast<std::size_t>(shot));
}

void ProjectMeta::setTimestamp(int shot, const QDateTime &timestamp)
{
    setElement(timestamps, static_cast<std::size_t>(shot), timestamp);
}

int ProjectMeta::missing(int shot) const
{
    return elementOf(missingValues, static_cast<std::size_t>(shot));
}

void ProjectMeta::setMissingValues(int shot, int count)
{
    setElement(missingValues, static_cast<std::size_t>(shot), count);
}

ShotOrigin ProjectMeta::origin(int shot) const
{
    return elementOf(origins, static_cast<std::size_t>(shot));
}

void ProjectMeta::setOrigin(int shot, const ShotOrigin &origin)
{
    setElement(origins, static_cast<std::size_t>(shot), origin);
}

int ProjectMeta::period(int shot) const
{
    return elementOf(periods, static_cast<std::size_t>(shot));
}

void ProjectMeta::setPeriod(int shot, int milliseconds)
{
    setElement(periods, static_cast<std::size_t>(shot), milliseconds);
}

void ProjectMeta::keepShots(int count)
{
    const auto most = static_cast<std::size_t>(count);
    keepElements(labels, most);
    keepElements(timestamps, most);
    keepElements(periods, most);
    keepElements(missingValues, most);
    keepElements(origins, most);
    keepElements(shotOthers, most);
}

void ProjectMeta::setOthers(int shot, const QJsonObject &values)
{
    if (!values.isEmpty() || static_cast<std::size_t>(shot) < shotOthers.size())
        setElement(shotOthers, static_cast<std::size_t>(shot), values);
}

ShotMeta ProjectMeta::shot(int shot) const
{
    const auto index = static_cast<std::size_t>(shot);
    return {label(shot), timestamp(shot), period(shot), missing(shot), elementOf(shotOthers, index), origin(shot)};
}

void ProjectMeta::insertShots(int first, const std::vector<ShotMeta> &shots)
{
    const auto index = static_cast<std::size_t>(first);
    insertElements(labels, index, shots, &ShotMeta::label);
    insertElements(timestamps, index, shots, &ShotMeta::timestamp);
    insertElements(periods, index, shots, &ShotMeta::period);
    insertElements(missingValues, index, shots, &ShotMeta::missing);
    insertElements(origins, index, shots, &ShotMeta::origin);
    insertElements(shotOthers, index, shots, &ShotMeta::others);
}

void ProjectMeta::removeShots(int first, int count)
{
    const auto index = static_cast<std::size_t>(first);
    const auto most = static_cast<std::size_t>(count);
    removeElements(labels, index, most);
    removeElements(timestamps, index, most);
    removeElements(periods, index, most);
    removeElements(missingValues, index, most);
    removeElements(origins, index, most);
    removeElements(shotOthers, index, most);
}

bool operator==(const QuantityMeta &a, const QuantityMeta &b)
{
    return a.key == b.key && a.isShown == b.isShown && a.lowerLimit == b.lowerLimit && a.upperLimit == b.upperLimit;
}

bool operator==(const SensorMeta &a, const SensorMeta &b)
{
    return a.startThreshold == b.startThreshold && a.stopThreshold == b.stopThreshold
           && a.chosenQuantity == b.chosenQuantity && a.quantities == b.quantities && a.others == b.others;
}

bool operator==(const SensorUnit &a, const SensorUnit &b)
{
    return a.unit == b.unit && a.name == b.name && a.minimum == b.minimum && a.maximum == b.maximum;
}

bool operator==(const ProjectMeta &a, const ProjectMeta &b)
{
    return a.sensors == b.sensors && a.labels == b.labels && a.timestamps == b.timestamps && a.periods == b.periods
           && a.missingValues == b.missingValues && a.origins == b.origins && a.shotOthers == b.shotOthers
           && a.importedFiles == b.importedFiles && a.others == b.others && a.units == b.units;
}

QString metaFileName(const QString &projectFile)
{
    const QString real = QFileInfo(projectFile).canonicalFilePath(); // empty if there is no such file
    return (real.isEmpty() ? projectFile : real) + QLatin1String(".meta");
}

bool writeProjectMeta(QIODevice &target, const ProjectMeta &meta, const ShotChecks &checks)
{
    QJsonArray sensors;
    for (std::size_t i = 0; i < meta.sensors.size(); ++i)
        sensors.append(toJson(meta.sensors[i], meta.units[i]));
    QJsonArray shots;
    for (std::size_t i = 0; i < checks.size(); ++i)
        shots.append(shotToJson(meta, i, checks[i]));
    QJsonObject root = meta.others;
    root.insert(kVersionKey, kMetaVersion);
    root.insert(kSensorsKey, sensors);
    root.insert(kShotsKey, shots);
    if (!meta.importedFiles.isEmpty())
        root.insert(kImportedKey, toJson(meta.importedFiles));
    const QByteArray text = QJsonDocument(root).toJson(QJsonDocument::Compact);
    return target.write(text) == text.size();
}

std::optional<ProjectMeta> readProjectMeta(QIODevice &source, const ShotChecks &checks)
{
    const QJsonObject root = readRoot(source);
    if (versionOf(root) != kMetaVersion)
        return {};
    ProjectMeta meta;
    const QJsonArray sensors = root.value(kSensorsKey).toArray();
    for (int i = 0; i < std::min(kNumSensors, sensors.size()); ++i) {
        const QJsonObject sensor = sensors.at(i).toObject();
        meta.sensors[static_cast<std::size_t>(i)] = toSensor(sensor);
        meta.units[static_cast<std::size_t>(i)] = toUnit(sensor);
    }
    readShots(meta, root.value(kShotsKey).toArray(), checks);
    meta.importedFiles = toFingerprints(root.value(kImportedKey).toArray());
    meta.others = without(root, {kVersionKey, kSensorsKey, kShotsKey, kImportedKey});
    return meta;
}

bool isNewerProjectMeta(QIODevice &source)
{
    return versionOf(readRoot(source)) > kMetaVersion;
}
