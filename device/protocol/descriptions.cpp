#include "device/protocol/descriptions.h"

#include <algorithm>
#include <cmath>

namespace {

// Finds a text from positions that only grow, so that all searches of one line together cost one pass over it.
class ForwardSearch
{
public:
    ForwardSearch(const QString &line, const QString &text)
        : m_line(line)
        , m_text(text)
    {}

    [[nodiscard]] int indexFrom(int position)
    {
        if (m_hit == kNotSearched || (m_hit >= 0 && m_hit < position))
            m_hit = m_line.indexOf(m_text, position);
        return m_hit;
    }

private:
    static constexpr int kNotSearched = -2;

    const QString &m_line;
    QString m_text;
    int m_hit = kNotSearched;
};

class Attribute
{
public:
    Attribute(const QString &line, const QString &key)
        : m_line(line)
        , m_search(line, key + QLatin1Char('='))
        , m_offset(key.size() + 2) // behind the equals sign and the opening quotation mark
    {}

    [[nodiscard]] QString text(int from = 0)
    {
        const int start = startOf(from);
        const int end = m_line.indexOf(QLatin1Char('"'), start);
        return m_line.mid(start, end - start);
    }
    [[nodiscard]] double number(int from = 0)
    {
        const double value = text(from).toDouble();
        return std::isfinite(value) ? value : 0.0;
    }
    [[nodiscard]] int integer(int from = 0) { return text(from).toInt(nullptr, 10); }
    [[nodiscard]] int digit(int from = 0) { return std::max(0, m_line.midRef(startOf(from), 1).toInt()); }

private:
    [[nodiscard]] int startOf(int from) { return m_search.indexFrom(from) + m_offset; }

    const QString &m_line;
    ForwardSearch m_search;
    int m_offset;
};

// Calls `handle` with the position of each element between `from` and `end`.
template <typename Handler>
void forEachElement(const QString &line, const QString &element, int from, int end, const Handler &handle)
{
    const QStringRef part = line.leftRef(end);
    for (int hit = part.indexOf(element, from); hit >= 0; hit = part.indexOf(element, hit + 1))
        handle(hit);
}

// Calls `handle` with the position of each group and of the end of its part of the line.
template <typename Handler>
void forEachGroup(const QString &line, const Handler &handle)
{
    const QString element = QStringLiteral("<group");
    for (int group = line.indexOf(element, 1); group >= 0;) {
        const int next = line.indexOf(element, group + 1);
        handle(group, next < 0 ? line.size() : next);
        group = next;
    }
}

void applySensors(const ReceivedSensors::Group &received, SensorGroup &group)
{
    const int count = std::min(static_cast<int>(received.sensors.size()), group.numSensors());
    for (int i = 0; i < count; ++i) {
        const ReceivedSensors::Sensor &sensor = received.sensors.at(i);
        group.setSensorName(i, sensor.name);
        group.setSensorType(i, sensor.type);
        group.setSensorUnit(i, sensor.unit);
        group.setSensorMinimum(i, sensor.minimum);
        group.setSensorMaximum(i, sensor.maximum);
    }
}

void applyGroup(const ReceivedSensors::Group &received, SensorDescription &description)
{
    if (received.position < 0 || received.position >= description.numSensorGroups())
        return;
    SensorGroup &group = *description.modifiableSensorGroup(received.position);
    group.setName(received.name);
    // Shrinking would lose the colours and limits of sensors that the program goes on recording.
    group.setNumSensors(received.position == 0 ? std::max(received.numSensors, kNumSensors) : received.numSensors);
    applySensors(received, group);
}

} // namespace

QString attributeText(const QString &line, const QString &key, int from)
{
    return Attribute(line, key).text(from);
}

DeviceDescription parseDeviceDescription(const QString &line)
{
    DeviceDescription device;
    device.hardwareVersion = attributeText(line, QStringLiteral("hardwareVersion"));
    device.firmwareVersion = attributeText(line, QStringLiteral("firmwareVersion"));
    device.numGroups = Attribute(line, QStringLiteral("numGroups")).digit();
    Attribute name(line, QStringLiteral("name"));
    Attribute numChannels(line, QStringLiteral("numChannels"));
    Attribute minimum(line, QStringLiteral("min"));
    Attribute maximum(line, QStringLiteral("max"));
    forEachGroup(line, [&](int begin, int end) {
        DeviceDescription::Group group{name.text(begin), numChannels.digit(begin), {}};
        forEachElement(line, QStringLiteral("<channel"), begin, end, [&](int channel) {
            group.channels.append({minimum.number(channel), maximum.number(channel)});
        });
        device.groups.append(group);
    });
    return device;
}

std::optional<ReceivedProject> parseProjectDescription(const QString &line)
{
    if (!line.contains(QLatin1String("<projectDescription")))
        return std::nullopt;
    const auto attribute = [&line](const char *key) { return Attribute(line, QLatin1String(key)); };
    ReceivedProject project;
    project.data.name = attribute("projectName").text();
    project.data.number = attribute("projectNumber").text();
    project.data.user = attribute("projectPerson").text();
    project.data.date = attribute("projectDate").text();
    project.data.customer = attribute("projectCustomer").text();
    project.data.closingForce = attribute("closePower").integer();
    project.data.injectionTime = attribute("injectionTime").number();
    project.data.pressTime = attribute("pressTime").number();
    project.data.pressure = attribute("pressure").integer();
    for (int i = 0; i < kNumCyclePhases; ++i)
        project.phases.at(static_cast<size_t>(i)) = attributeText(line, QStringLiteral("phase%1").arg(i + 1));
    return project;
}

ReceivedSensors parseSensorDescription(const QString &line)
{
    const auto attribute = [&line](const char *key) { return Attribute(line, QLatin1String(key)); };
    ReceivedSensors received;
    received.numGroups = attribute("numGroups").digit();
    Attribute position = attribute("groupPos"), groupName = attribute("name"), numSensors = attribute("numSensors");
    Attribute name = attribute("name"), type = attribute("type"), unit = attribute("unit");
    Attribute minimum = attribute("min"), maximum = attribute("max");
    forEachGroup(line, [&](int begin, int end) {
        ReceivedSensors::Group group{position.integer(begin), groupName.text(begin), numSensors.digit(begin), {}};
        forEachElement(line, QStringLiteral("<sensor"), begin, end, [&](int sensor) {
            group.sensors.append({name.text(sensor), type.text(sensor), unit.text(sensor).remove(QChar(0xC2)),
                                  minimum.number(sensor), maximum.number(sensor)});
        });
        received.groups.append(group);
    });
    return received;
}

void applySensorDescription(const ReceivedSensors &received, SensorDescription &description)
{
    description.setNumSensorGroups(std::max(received.numGroups, 1));
    description.modifiableSensorGroup(0)->setNumSensors(std::max(description.sensorGroup(0).numSensors(), kNumSensors));
    for (const ReceivedSensors::Group &group : received.groups)
        applyGroup(group, description);
}
