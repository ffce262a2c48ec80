#include "model/indexcheck.h"
#include "model/model.h"
#include "model/project/pacer.h"
#include "model/project/projectfile.h"
#include "model/project/projectimage.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace {

constexpr int kCurrentFileVersion = 7;

bool isList(const QVariant &value)
{
    return value.userType() == QMetaType::QVariantList;
}

double toNumber(const QVariant &value)
{
    return value.userType() == QMetaType::Double ? value.toDouble() : 0.0;
}

QString toText(const QVariant &value, const QString &otherwise = QString())
{
    return value.userType() == QMetaType::QString ? value.toString() : otherwise;
}

int toInteger(double number)
{
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(number), kLeast, kMost));
}

// A value of another type leaves what it should have replaced as it is.
void take(const QVariant &value, QString &text)
{
    text = toText(value, text);
}

void take(const QVariant &value, double &number)
{
    if (value.userType() == QMetaType::Double)
        number = value.toDouble();
}

void take(const QVariant &value, int &number)
{
    if (value.userType() == QMetaType::Double)
        number = toInteger(value.toDouble());
}

template <typename Channel>
std::optional<Channel> toChannel(std::optional<ProjectContent::Measurements> &measurements)
{
    if (!measurements)
        return {};
    Channel channel;
    channel.reserve(measurements->size());
    for (SampleList &samples : *measurements)
        channel.push_back(std::make_unique<SampleList>(std::move(samples)));
    return channel;
}

// Calls apply(index, element) for each element of the list under the key, or logs what it is not.
template <typename Apply>
void forEachElement(const QVariantMap &fields, const char *key, const char *complaint, const Apply &apply)
{
    const QVariant value = fields.value(QLatin1String(key));
    if (!isList(value)) {
        qCDebug(lcModel) << complaint;
        return;
    }
    int index = 0;
    const QVariantList elements = value.toList();
    for (const QVariant &element : elements)
        apply(index++, element);
}

std::array<double, kNumSensors> toRow(const QVariantMap &fields, const char *key, const char *complaint)
{
    std::array<double, kNumSensors> row{};
    forEachElement(fields, key, complaint, [&row](int index, const QVariant &element) {
        if (index < kNumSensors)
            row[at(index)] = toNumber(element);
    });
    return row;
}

// Empty where there is nothing to take over.
QVariantMap findViewData(const QVariantMap &fields)
{
    const auto viewData = fields.constFind(QStringLiteral("ViewData"));
    if (viewData == fields.constEnd())
        qCDebug(lcModel) << "jViewData is undefined (key 'ViewData' not found)!";
    else if (viewData->userType() != QMetaType::QVariantMap)
        qCDebug(lcModel) << "jViewData is no object!";
    else if (viewData->toMap().isEmpty())
        qCDebug(lcModel) << "jViewDataObj is empty!  (Qt bug? doesn't matter!)";
    else
        return viewData->toMap();
    return {};
}

} // namespace

struct Model::OpenedProject
{
    QVariantMap fields;
    std::array<QPixmap, kNumImages> images;
    std::array<EncodedImage, kNumImages> encodedImages;
    std::array<std::optional<Channel>, kNumSensors> channels;
};

bool Model::open(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    if (refusesWhileBusy(Q_FUNC_INFO))
        return false;
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " could not open file:" << fileName;
        return false;
    }
    std::optional<OpenedProject> project = readFile(file);
    if (!project) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " jdoc is no object!";
        return false;
    }
    blockSignals(true);
    apply(*project, QFileInfo(fileName).absoluteFilePath());
    blockSignals(false); // open from here on, whatever they were before
    announceOpened(Q_FUNC_INFO);
    return true;
}

// All that can fail, takes long or lets events in happens here, before the model is touched.
std::optional<Model::OpenedProject> Model::readFile(QFile &file)
{
    const QScopedValueRollback<bool> busy(m_busy, true);
    try {
        Pacer pacer(m_yield, file.size());
        std::optional<ProjectContent> content = readProject(file, pacer);
        if (!content)
            return {};
        OpenedProject project;
        for (int image = 0; image < kNumImages; ++image) {
            const QVariant base64 = content->fields.take(imageKey(image));
            const QByteArray png = QByteArray::fromBase64(toText(base64).toLatin1());
            project.images[at(image)] = fromPng(png);
            project.encodedImages[at(image)].remember(project.images[at(image)], png);
            pacer.moveTo(file.size());
        }
        project.fields = content->fields;
        std::transform(content->measurements.begin(), content->measurements.end(), project.channels.begin(),
                       toChannel<Channel>);
        return project;
    } catch (const std::bad_alloc &) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: out of memory!";
        return {};
    }
}

void Model::apply(OpenedProject &project, const QString &absolutePath)
{
    clear();
    const QVariantMap &fields = project.fields;
    QString version = toText(fields.value(QStringLiteral("fileVersion")));
    if (version.isEmpty())
        version = QStringLiteral("6.0");
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " file version=" << version;
    applyDescription(fields);
    setCurrentFile(absolutePath);
    m_images = project.images;
    m_encodedImages = std::move(project.encodedImages);
    if (version.toInt() < kCurrentFileVersion) // 0 for what is no integer
        useDistanceSensors();
    for (std::size_t sensor = 0; sensor < project.channels.size(); ++sensor)
        applyChannel(static_cast<int>(sensor), project.channels[sensor]);
    applyLabels(fields);
    applySensors(fields);
    applyViewData(fields);
    openMeta(absolutePath);
}

void Model::applyDescription(const QVariantMap &fields)
{
    const auto value = [&fields](const char *key) { return fields.value(QLatin1String(key)); };
    take(value("projectName"), m_projectData.name);
    take(value("projectNumber"), m_projectData.number);
    take(value("projectUser"), m_projectData.user);
    take(value("projectDate"), m_projectData.date);
    take(value("projectCustomer"), m_projectData.customer);
    take(value("paramClosingForce"), m_projectData.closingForce);
    take(value("paramInjectionTime"), m_projectData.injectionTime);
    take(value("paramPressureTime"), m_projectData.pressTime);
    take(value("paramPressure"), m_projectData.pressure);
    take(value("mesotraType"), m_mesotraType);
    take(value("hwVersion"), m_hardwareVersion);
    take(value("swVersion"), m_firmwareVersion);
    take(value("comment"), m_comment);
    take(value("clock"), m_clock);
    m_clock = qBound(1, m_clock, kMaxClock);
}

void Model::useDistanceSensors()
{
    qCDebug(lcModel).noquote().nospace() << " file version < 7 -> using defaults (1 group, 5 sensors, distance)";
    m_sensorDescription.setNumSensorGroups(1);
    SensorGroup *group = m_sensorDescription.modifiableSensorGroup(0);
    group->setNumSensors(kNumSensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        group->setSensorType(sensor, QStringLiteral("Distance"));
}

void Model::applyChannel(int sensor, std::optional<Channel> &channel)
{
    if (!channel) {
        qCDebug(lcModel).noquote().nospace() << " jSensor" << sensor + 1 << " is no array!";
        return;
    }
    qCDebug(lcModel).noquote().nospace() << "jSensor1Array.size()=" << channel->size();
    for (const auto &samples : *channel)
        qCDebug(lcModel).noquote().nospace() << "jValues.size()=" << samples->size();
    m_channels[at(sensor)] = std::move(*channel);
    m_ids[at(sensor)].resize(m_channels[at(sensor)].size());
    for (quint64 &id : m_ids[at(sensor)])
        id = ++m_lastId;
    ++m_structureRevision;
}

void Model::applyLabels(const QVariantMap &fields)
{
    forEachElement(fields, "markers", " jMarkers is no array!", [this](int index, const QVariant &position) {
        setVerticalMarkerAbsolute(index, toInteger(toNumber(position)));
    });
    forEachElement(fields, "phases", " jPhases is no array!",
                   [this](int index, const QVariant &name) { setPhaseName(index, toText(name)); });
}

void Model::applySensors(const QVariantMap &fields)
{
    m_sensorDescription.setNumSensorGroups(1);
    m_sensorDescription.modifiableSensorGroup(0)->setNumSensors(kNumSensors);
    const auto group = [this]() -> const SensorGroup & { return m_sensorDescription.sensorGroup(0); };
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " numSensorGroups=" << m_sensorDescription.numSensorGroups()
                                         << " numSensors(0)=" << group().numSensors();
    forEachElement(fields, "sensor minValues", " jMinValues is no array!", [&](int sensor, const QVariant &value) {
        setSensorMinimum(0, sensor, toNumber(value));
        qCDebug(lcModel).noquote().nospace() << " sensor minimum(" << sensor << ")=" << group().sensorMinimum(sensor);
    });
    forEachElement(fields, "sensor maxValues", " jMaxValues is no array!", [&](int sensor, const QVariant &value) {
        setSensorMaximum(0, sensor, toNumber(value));
        qCDebug(lcModel).noquote().nospace() << " sensor maximum(" << sensor << ")=" << group().sensorMaximum(sensor);
    });
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        setSensorName(sensor, toText(fields.value(sensorNameKey(sensor)), QStringLiteral("Sensor %1").arg(sensor + 1)));
    forEachElement(fields, "corrections", " jCorrections is no array!", [this](int sensor, const QVariant &value) {
        setOffset(sensor, toNumber(value));
        qCDebug(lcModel).noquote().nospace() << " offset[" << sensor << "]=" << offset(sensor);
    });
}

void Model::applyViewData(const QVariantMap &fields)
{
    std::array<double, kNumSensors> minimum{};
    std::array<double, kNumSensors> maximum{};
    const QVariantMap viewData = findViewData(fields);
    if (!viewData.isEmpty()) {
        const QVariant absolute = viewData.value(QStringLiteral("checkBoxMarkerAbsolute"));
        if (absolute.userType() == QMetaType::Bool)
            m_markersAbsolute = absolute.toBool();
        minimum = toRow(viewData, "osziMinValues", "jOsziMinArray is no array!");
        maximum = toRow(viewData, "osziMaxValues", "jOsziMaxArray is no array!");
    }
    const SensorGroup &group = m_sensorDescription.sensorGroup(0);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        double &from = minimum[at(sensor)];
        double &to = maximum[at(sensor)];
        if (from == to) {
            qCDebug(lcModel).nospace() << "osziMin and osziMax not given or equal -> use sensor min/max values:" << from
                                       << ", " << to;
            from = group.sensorMinimum(sensor);
            to = group.sensorMaximum(sensor);
        }
    }
    m_osziMinimum = minimum;
    m_osziMaximum = maximum;
}

void Model::announceOpened(const char *function)
{
    qCDebug(lcModel) << function << "emitting projectChanged()";
    emit projectChanged();
    qCDebug(lcModel) << function << "emitting dataChanged()";
    emit dataChanged();
    qCDebug(lcModel) << function << "emitting viewDataChanged()";
    emit viewDataChanged();
    emit fileStateChanged();
    discardRemoved();
    setProjectModifiedFlag(false);
    qCDebug(lcModel) << function << " END";
}
