#include "model/indexcheck.h"
#include "model/json/jsonreader.h"
#include "model/project/pacer.h"
#include "model/project/projectfile.h"
#include "model/project/samplecollector.h"

#include <QSet>

#include <functional>
#include <new>

namespace {

using Token = JsonReader::Token;

constexpr int kMostItems = 64; // of a list or map that does not hold samples
constexpr std::size_t kMostMeasurements = 10000000;

QSet<QString> knownFields()
{
    QSet<QString> keys;
    for (const char *key : {"ViewData",
                            "clock",
                            "comment",
                            "corrections",
                            "fileVersion",
                            "hwVersion",
                            "markers",
                            "mesotraType",
                            "paramClosingForce",
                            "paramInjectionTime",
                            "paramPressure",
                            "paramPressureTime",
                            "phases",
                            "projectCustomer",
                            "projectDate",
                            "projectName",
                            "projectNumber",
                            "projectUser",
                            "sensor maxValues",
                            "sensor minValues",
                            "swVersion"})
        keys.insert(QLatin1String(key));
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        keys.insert(sensorNameKey(sensor));
    for (int image = 0; image < kNumProjectImages; ++image)
        keys.insert(imageKey(image));
    return keys;
}

// The sensor of a key "sensor 1" to "sensor 5", -1 for another key.
int sensorOfKey(const QString &key)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        if (key == QStringLiteral("sensor %1").arg(sensor + 1))
            return sensor;
    }
    return -1;
}

class ProjectReader
{
public:
    ProjectReader(JsonReader &json, const std::function<void()> &pause)
        : m_json(json)
        , m_pause(pause)
    {}

    [[nodiscard]] std::optional<ProjectContent> read()
    {
        if (m_json.next() != Token::BeginObject)
            return {};
        Token token = m_json.next();
        for (; token == Token::Key; token = m_json.next()) {
            if (!readMember(m_json.text()))
                return {};
        }
        if (token != Token::EndObject || m_json.next() != Token::End)
            return {};
        return std::move(m_content);
    }

private:
    [[nodiscard]] bool readMember(const QString &key)
    {
        const int sensor = sensorOfKey(key);
        if (sensor >= 0)
            return readMeasurements(m_content.measurements[at(sensor)]);
        const Token token = m_json.next();
        return m_known.contains(key) ? readValue(token, m_content.fields[key]) : m_json.skipValue(token);
    }

    [[nodiscard]] bool readMeasurements(std::optional<ProjectContent::Measurements> &measurements)
    {
        measurements.reset();
        Token token = m_json.next();
        if (token != Token::BeginArray)
            return m_json.skipValue(token);
        measurements.emplace();
        for (token = m_json.next(); token != Token::EndArray; token = m_json.next()) {
            if (measurements->size() == kMostMeasurements)
                throw std::bad_alloc();
            // What is no list of samples still takes its place among the shots.
            const bool valid = token == Token::BeginArray ? readSamples() : m_json.skipValue(token);
            if (!valid)
                return false;
            measurements->push_back(m_samples.take(m_pause));
        }
        return true;
    }

    [[nodiscard]] bool readSamples()
    {
        for (;;) {
            double *room = m_samples.room();
            const int capacity = m_samples.roomSize();
            const int count = m_json.readNumbers(room, capacity);
            m_samples.commit(count);
            if (count == capacity)
                continue;
            const Token token = m_json.next();
            if (token == Token::EndArray)
                return true;
            if (!m_json.skipValue(token))
                return false;
            room[count] = token == Token::Number ? m_json.number() : 0.0;
            m_samples.commit(1);
        }
    }

    [[nodiscard]] bool readValue(Token token, QVariant &value)
    {
        value.clear();
        switch (token) {
        case Token::String:
            value = m_json.text();
            return true;
        case Token::Number:
            value = m_json.number();
            return true;
        case Token::True:
        case Token::False:
            value = token == Token::True;
            return true;
        case Token::BeginArray:
            return readList(value);
        case Token::BeginObject:
            return readMap(value);
        default:
            return m_json.skipValue(token);
        }
    }

    [[nodiscard]] bool readList(QVariant &value)
    {
        QVariantList list;
        for (Token token = m_json.next(); token != Token::EndArray; token = m_json.next()) {
            QVariant item;
            if (!(list.size() < kMostItems ? readInner(token, item) : m_json.skipValue(token)))
                return false;
            if (list.size() < kMostItems)
                list.append(item);
        }
        value = list;
        return true;
    }

    [[nodiscard]] bool readMap(QVariant &value)
    {
        QVariantMap map;
        Token token = m_json.next();
        for (; token == Token::Key; token = m_json.next()) {
            const QString key = m_json.text();
            QVariant item;
            if (!readInner(m_json.next(), item))
                return false;
            if (map.size() < kMostItems || map.contains(key))
                map.insert(key, item);
        }
        value = map;
        return token == Token::EndObject;
    }

    [[nodiscard]] bool readInner(Token token, QVariant &value)
    {
        constexpr int kDeepest = 2; // the lists in "ViewData"
        if (m_depth == kDeepest)
            return m_json.skipValue(token);
        ++m_depth;
        const bool valid = readValue(token, value);
        --m_depth;
        return valid;
    }

    JsonReader &m_json;
    std::function<void()> m_pause;
    const QSet<QString> m_known = knownFields();
    SampleCollector m_samples;
    ProjectContent m_content;
    int m_depth = 0;
};

} // namespace

QString sensorNameKey(int sensor)
{
    return QStringLiteral("sensorName %1").arg(sensor + 1);
}

QString imageKey(int image)
{
    return image == 0 ? QStringLiteral("projectImage") : QStringLiteral("projectImage%1").arg(image);
}

std::optional<ProjectContent> readProject(QIODevice &source, Pacer &pacer)
{
    JsonReader json(source, [&pacer](qint64 bytes) { pacer.moveTo(bytes); });
    return ProjectReader(json, [&pacer] { pacer.look(); }).read();
}
