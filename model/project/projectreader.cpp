#include "model/project/projectreader.h"

#include "model/arrayindex.h"
#include "model/json/jsonreader.h"
#include "model/project/pacer.h"
#include "model/project/projectdocument.h"
#include "model/project/projectimage.h"
#include "model/project/projectkeys.h"
#include "model/project/samplecollector.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <new>
#include <utility>

namespace {

using namespace projectkeys;
using Token = JsonReader::Token;

constexpr int kMostItems = 64; // of a list that does not hold samples
constexpr std::size_t kMostMeasurements = 10000000;
// Of what the program only keeps, in bytes.
constexpr int kMostUnknown = 64 << 20;
constexpr int kUnknownCost = 200; // of one member, beside its text
constexpr int kLongestKey = 1 << 16;
constexpr int kLongestPicture = 1 << 28;

int toInteger(double number)
{
    constexpr double kLeast = std::numeric_limits<int>::min();
    constexpr double kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::round(number), kLeast, kMost));
}

/// Reads one document. A value of another type than its field has is skipped and leaves the field empty.
class ProjectReader
{
public:
    ProjectReader(JsonReader &json, const std::function<void()> &pause);

    [[nodiscard]] std::optional<ProjectDocument> read();

private:
    /// What reads the value of a key; false if that is not valid JSON.
    using Fields = QHash<QString, std::function<bool()>>;

    void expectTexts();
    void expectNumbers();
    void expectNumberedKeys();
    void expectViewData();
    template <typename Value>
    void expect(const char *key, Value &value)
    {
        m_fields.insert(QLatin1String(key), [this, &value] { return readValue(value); });
    }
    template <typename Value>
    void expectInView(const char *key, Value &value)
    {
        m_viewFields.insert(QLatin1String(key), [this, &value] { return readValue(value); });
    }

    void expectReserved();
    [[nodiscard]] bool readMember(const Fields &fields, UnknownMembers &unknown);
    [[nodiscard]] bool keepUnknown(const QString &name, UnknownMembers &unknown);
    [[nodiscard]] bool skipHugeKey();
    [[nodiscard]] bool readVersion();
    /// Notes that a value is not of the type that its field needs; null stands for no value at all.
    void noteType(Token token, bool fits) { m_isOdd = m_isOdd || (!fits && token != Token::Null); }
    [[nodiscard]] bool readValue(std::optional<QString> &text);
    [[nodiscard]] bool readValue(std::optional<double> &number);
    [[nodiscard]] bool readValue(std::optional<int> &number);
    [[nodiscard]] bool readValue(std::optional<bool> &truth);
    [[nodiscard]] bool readValue(std::optional<QVector<double>> &numbers);
    [[nodiscard]] bool readValue(std::optional<QVector<int>> &numbers);
    [[nodiscard]] bool readValue(std::optional<QStringList> &texts);
    [[nodiscard]] bool readValue(QByteArray &image);
    [[nodiscard]] bool readValue(ProjectViewData &viewData);
    [[nodiscard]] bool readValue(std::optional<SampleRuns> &runs);
    [[nodiscard]] bool readSamples();
    template <typename Items, typename ToItem>
    [[nodiscard]] bool readItems(std::optional<Items> &items, const ToItem &toItem);

    JsonReader &m_json;
    std::function<void()> m_pause;
    Fields m_fields;
    Fields m_viewFields;
    SampleCollector m_samples;
    int m_unknownRoom = kMostUnknown;
    bool m_isOdd = false; // the value just read is not what it should be
    ProjectDocument m_document;
};

ProjectReader::ProjectReader(JsonReader &json, const std::function<void()> &pause)
    : m_json(json)
    , m_pause(pause)
{
    expectTexts();
    expectNumbers();
    expectNumberedKeys();
    expectViewData();
    expectReserved();
}

void ProjectReader::expectTexts()
{
    m_fields.insert(QLatin1String(kFileVersion), [this] { return readVersion(); });
    expect(kName, m_document.name);
    expect(kNumber, m_document.number);
    expect(kUser, m_document.user);
    expect(kDate, m_document.date);
    expect(kCustomer, m_document.customer);
    expect(kComment, m_document.comment);
    expect(kHardwareVersion, m_document.hardwareVersion);
    expect(kFirmwareVersion, m_document.firmwareVersion);
    expect(kPhases, m_document.phases);
}

void ProjectReader::expectNumbers()
{
    expect(kClosingForce, m_document.closingForce);
    expect(kInjectionTime, m_document.injectionTime);
    expect(kPressTime, m_document.pressTime);
    expect(kPressure, m_document.pressure);
    expect(kClock, m_document.clock);
    expect(kMesotraType, m_document.mesotraType);
    expect(kMarkers, m_document.markers);
    expect(kCorrections, m_document.corrections);
    expect(kSensorMinimum, m_document.sensorMinimum);
    expect(kSensorMaximum, m_document.sensorMaximum);
}

void ProjectReader::expectNumberedKeys()
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        expect(samples(sensor).toLatin1().constData(), m_document.samples[at(sensor)]);
        expect(sensorName(sensor).toLatin1().constData(), m_document.sensorNames[at(sensor)]);
    }
    for (int i = 0; i < kNumProjectImages; ++i)
        expect(image(i).toLatin1().constData(), m_document.images[at(i)]);
}

void ProjectReader::expectViewData()
{
    expect(kViewData, m_document.viewData);
    expectInView(kMarkersAbsolute, m_document.viewData.markersAbsolute);
    expectInView(kOsziMinimum, m_document.viewData.osziMinimum);
    expectInView(kOsziMaximum, m_document.viewData.osziMaximum);
}

void ProjectReader::expectReserved()
{
    m_fields.insert(QLatin1String(kReserved), [this] {
        const Token token = m_json.next();
        noteType(token, false);
        return m_json.skipValue(token);
    });
}

std::optional<ProjectDocument> ProjectReader::read()
{
    if (m_json.next() != Token::BeginObject)
        return {};
    Token token = m_json.next();
    for (; token == Token::Key; token = m_json.next()) {
        if (!readMember(m_fields, m_document.rest.unknown))
            return {};
    }
    if (token != Token::EndObject || m_json.next() != Token::End)
        return {};
    sortMembers(m_document.rest.unknown);
    return std::move(m_document);
}

bool ProjectReader::readMember(const Fields &fields, UnknownMembers &unknown)
{
    if (m_json.escapedText().size() > kLongestKey)
        return skipHugeKey();
    const QString name = m_json.text();
    const auto field = fields.constFind(name);
    if (field == fields.constEnd())
        return keepUnknown(name, unknown);
    m_document.rest.hasKnownKey = true;
    m_isOdd = false;
    const bool valid = (*field)();
    if (std::exchange(m_isOdd, false))
        m_document.rest.lost.add(name);
    return valid;
}

bool ProjectReader::keepUnknown(const QString &name, UnknownMembers &unknown)
{
    UnknownMember member{name, m_json.escapedText(), {}};
    const int room = m_unknownRoom - kUnknownCost - member.key.size();
    if (!m_json.copyValue(member.value, room))
        return false;
    if (member.value.isEmpty()) {
        m_document.rest.lost.add(name);
        return true;
    }
    m_unknownRoom = room - member.value.size();
    unknown.append(std::move(member));
    return true;
}

/// No text for people; it would take several times its size as a QString.
bool ProjectReader::skipHugeKey()
{
    m_document.rest.lost.add(QString::fromUtf8(m_json.escapedText().left(NameList::kLongestName)));
    return m_json.skipValue(m_json.next());
}

bool ProjectReader::readVersion()
{
    m_document.fileVersion.reset();
    const Token token = m_json.next();
    m_document.rest.numericVersion = token == Token::Number ? m_json.number() : 0.0;
    if (token == Token::String)
        m_document.fileVersion = m_json.text();
    return m_json.skipValue(token);
}

// Each of these empties the field first: an earlier value of the same key does not count.
bool ProjectReader::readValue(std::optional<QString> &text)
{
    text.reset();
    const Token token = m_json.next();
    noteType(token, token == Token::String);
    if (token == Token::String)
        text = m_json.text();
    return m_json.skipValue(token);
}

bool ProjectReader::readValue(std::optional<double> &number)
{
    number.reset();
    const Token token = m_json.next();
    noteType(token, token == Token::Number);
    if (token == Token::Number)
        number = m_json.number();
    return m_json.skipValue(token);
}

bool ProjectReader::readValue(std::optional<int> &number)
{
    std::optional<double> value;
    const bool valid = readValue(value);
    number = value ? std::optional(toInteger(*value)) : std::nullopt;
    return valid;
}

bool ProjectReader::readValue(std::optional<bool> &truth)
{
    truth.reset();
    const Token token = m_json.next();
    const bool isTruth = token == Token::True || token == Token::False;
    noteType(token, isTruth);
    if (isTruth)
        truth = token == Token::True;
    return m_json.skipValue(token);
}

bool ProjectReader::readValue(std::optional<QVector<double>> &numbers)
{
    return readItems(numbers, [this](Token token) { return token == Token::Number ? m_json.number() : 0.0; });
}

bool ProjectReader::readValue(std::optional<QVector<int>> &numbers)
{
    return readItems(numbers, [this](Token token) { return token == Token::Number ? toInteger(m_json.number()) : 0; });
}

bool ProjectReader::readValue(std::optional<QStringList> &texts)
{
    return readItems(texts, [this](Token token) { return token == Token::String ? m_json.text() : QString(); });
}

bool ProjectReader::readValue(QByteArray &image)
{
    QByteArray json;
    if (!m_json.copyValue(json, kLongestPicture))
        return false;
    m_isOdd = m_isOdd || json.isEmpty(); // too large
    image = encodedImage(std::move(json));
    return true;
}

bool ProjectReader::readValue(ProjectViewData &viewData)
{
    viewData = {};
    viewData.kind = ProjectViewData::Kind::NoObject;
    Token token = m_json.next();
    noteType(token, token == Token::BeginObject);
    if (token != Token::BeginObject)
        return m_json.skipValue(token);
    viewData.kind = ProjectViewData::Kind::Empty;
    for (token = m_json.next(); token == Token::Key; token = m_json.next()) {
        viewData.kind = ProjectViewData::Kind::Given;
        if (!readMember(m_viewFields, viewData.unknown))
            return false;
    }
    sortMembers(viewData.unknown);
    return token == Token::EndObject;
}

bool ProjectReader::readValue(std::optional<SampleRuns> &runs)
{
    runs.reset();
    Token token = m_json.next();
    noteType(token, token == Token::BeginArray);
    if (token != Token::BeginArray)
        return m_json.skipValue(token);
    runs.emplace();
    for (token = m_json.next(); token != Token::EndArray; token = m_json.next()) {
        if (runs->size() == kMostMeasurements)
            throw std::bad_alloc();
        // What is no list of samples still takes its place among the shots.
        const bool valid = token == Token::BeginArray ? readSamples() : m_json.skipValue(token);
        if (!valid)
            return false;
        runs->emplace_back(m_samples.take(m_pause));
    }
    return true;
}

bool ProjectReader::readSamples()
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

template <typename Items, typename ToItem>
bool ProjectReader::readItems(std::optional<Items> &items, const ToItem &toItem)
{
    items.reset();
    Token token = m_json.next();
    noteType(token, token == Token::BeginArray);
    if (token != Token::BeginArray)
        return m_json.skipValue(token);
    items.emplace();
    for (token = m_json.next(); token != Token::EndArray; token = m_json.next()) {
        if (items->size() < kMostItems)
            items->append(toItem(token));
        if (!m_json.skipValue(token))
            return false;
    }
    return true;
}

} // namespace

std::optional<ProjectDocument> projectfile::read(QIODevice &source, Pacer &pacer)
{
    JsonReader json(source, [&pacer](qint64 bytes) { pacer.moveTo(bytes); });
    return ProjectReader(json, [&pacer] { pacer.look(); }).read();
}
