#include "model/project/projectmeta.h"

#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMetaVersion = 1;
constexpr int kMostQuantities = 1000; // of one sensor
constexpr int kLongestOrigin = 5000;  // characters of each of its texts

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

QJsonObject toJson(const SensorMeta &sensor)
{
    QJsonArray quantities;
    for (const QuantityMeta &quantity : sensor.quantities)
        quantities.append(toJson(quantity));
    return {{kStartKey, sensor.startThreshold},
            {kStopKey, sensor.stopThreshold},
            {kChosenKey, sensor.chosenQuantity},
            {kQuantitiesKey, quantities}};
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

QJsonObject toJson(quint32 check, const QString &label, const QDateTime &timestamp, const ShotOrigin &origin)
{
    QJsonObject object{{kCheckKey, double(check)}};
    if (!label.isEmpty())
        object.insert(kLabelKey, label);
    if (timestamp.isValid())
        object.insert(kTimeKey, timestamp.toUTC().toString(Qt::ISODateWithMs));
    if (origin.isKnown())
        object.insert(kOriginKey, toJson(origin));
    return object;
}

template <typename Value>
Value elementOf(const std::vector<Value> &values, std::size_t index)
{
    return index < values.size() ? values[index] : Value();
}

template <typename Value>
void setElement(std::vector<Value> &values, std::size_t index, const Value &value)
{
    if (index >= values.size())
        values.resize(index + 1);
    values[index] = value;
}

SensorMeta toSensor(const QJsonObject &object)
{
    SensorMeta sensor;
    sensor.startThreshold = toLimit(object.value(kStartKey)).value_or(0.0);
    sensor.stopThreshold = toLimit(object.value(kStopKey)).value_or(0.0);
    sensor.chosenQuantity = object.value(kChosenKey).toString();
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
    for (std::size_t i = 0; i < count; ++i) {
        const QJsonObject shot = shots.at(static_cast<int>(i)).toObject();
        // Another check number: the project was changed without this file, and the label belongs to another shot.
        if (shot.value(kCheckKey).toDouble(-1.0) != double(checks[i]))
            continue;
        meta.labels[i] = shot.value(kLabelKey).toString().left(ProjectMeta::kLongestLabel);
        const QString time = shot.value(kTimeKey).toString();
        const QDateTime timestamp = QDateTime::fromString(time, Qt::ISODateWithMs);
        meta.timestamps[i] = timestamp.isValid() ? timestamp.toLocalTime() : QDateTime();
        meta.origins[i] = toOrigin(shot.value(kOriginKey).toObject());
    }
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
           && std::none_of(origins.begin(), origins.end(), [](const ShotOrigin &origin) { return origin.isKnown(); });
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

ShotOrigin ProjectMeta::origin(int shot) const
{
    return elementOf(origins, static_cast<std::size_t>(shot));
}

void ProjectMeta::setOrigin(int shot, const ShotOrigin &origin)
{
    setElement(origins, static_cast<std::size_t>(shot), origin);
}

void ProjectMeta::keepShots(int count)
{
    const auto most = static_cast<std::size_t>(count);
    labels.resize(std::min(most, labels.size()));
    timestamps.resize(std::min(most, timestamps.size()));
    origins.resize(std::min(most, origins.size()));
}

void ProjectMeta::removeShot(int shot)
{
    const auto index = static_cast<std::size_t>(shot);
    if (index < labels.size())
        labels.erase(labels.begin() + shot);
    if (index < timestamps.size())
        timestamps.erase(timestamps.begin() + shot);
    if (index < origins.size())
        origins.erase(origins.begin() + shot);
}

bool operator==(const QuantityMeta &a, const QuantityMeta &b)
{
    return a.key == b.key && a.isShown == b.isShown && a.lowerLimit == b.lowerLimit && a.upperLimit == b.upperLimit;
}

bool operator==(const SensorMeta &a, const SensorMeta &b)
{
    return a.startThreshold == b.startThreshold && a.stopThreshold == b.stopThreshold
           && a.chosenQuantity == b.chosenQuantity && a.quantities == b.quantities;
}

bool operator==(const ProjectMeta &a, const ProjectMeta &b)
{
    return a.sensors == b.sensors && a.labels == b.labels && a.timestamps == b.timestamps && a.origins == b.origins;
}

QString metaFileName(const QString &projectFile)
{
    return projectFile + QLatin1String(".meta");
}

bool writeProjectMeta(QIODevice &target, const ProjectMeta &meta, const ShotChecks &checks)
{
    QJsonArray sensors;
    for (const SensorMeta &sensor : meta.sensors)
        sensors.append(toJson(sensor));
    QJsonArray shots;
    for (std::size_t i = 0; i < checks.size(); ++i)
        shots.append(
            toJson(checks[i], elementOf(meta.labels, i), elementOf(meta.timestamps, i), elementOf(meta.origins, i)));
    const QJsonObject root{{kVersionKey, kMetaVersion}, {kSensorsKey, sensors}, {kShotsKey, shots}};
    const QByteArray text = QJsonDocument(root).toJson(QJsonDocument::Compact);
    return target.write(text) == text.size();
}

std::optional<ProjectMeta> readProjectMeta(QIODevice &source, const ShotChecks &checks)
{
    const QByteArray text = source.read(kLargestMeta + 1);
    if (text.size() > kLargestMeta)
        return {};
    const QJsonObject root = QJsonDocument::fromJson(text).object();
    if (root.value(kVersionKey).toInt() != kMetaVersion)
        return {};
    ProjectMeta meta;
    const QJsonArray sensors = root.value(kSensorsKey).toArray();
    for (int i = 0; i < std::min(kNumSensors, sensors.size()); ++i)
        meta.sensors[static_cast<std::size_t>(i)] = toSensor(sensors.at(i).toObject());
    readShots(meta, root.value(kShotsKey).toArray(), checks);
    return meta;
}
