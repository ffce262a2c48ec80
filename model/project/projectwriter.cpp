#include "model/project/projectwriter.h"

#include "model/arrayindex.h"
#include "model/json/jsonwriter.h"
#include "model/project/pacer.h"
#include "model/project/projectdocument.h"
#include "model/project/projectimage.h"
#include "model/project/projectkeys.h"

namespace {

using namespace projectkeys;

// Samples of a measurement that are written before the pacer checks the clock.
constexpr int kSamplesAtOnce = 512;

/// Writes the members of one object. The caller gives the known ones in sorted order; the others are put between them.
class Members
{
public:
    Members(JsonWriter &json, const UnknownMembers &others)
        : m_json(json)
        , m_others(others)
    {
        m_json.beginObject();
    }
    JsonWriter &key(const char *name)
    {
        while (m_next < m_others.size() && m_others[m_next].name < QLatin1String(name))
            writeOther();
        m_json.key(name);
        return m_json;
    }
    JsonWriter &key(const QString &name) { return key(name.toLatin1().constData()); }
    void end()
    {
        while (m_next < m_others.size())
            writeOther();
        m_json.endObject();
    }

private:
    void writeOther()
    {
        const UnknownMember &other = m_others[m_next++];
        m_json.escapedKey(other.key);
        m_json.json(other.value);
    }

    JsonWriter &m_json;
    const UnknownMembers &m_others;
    int m_next = 0;
};

void writeValue(JsonWriter &json, int number)
{
    json.value(static_cast<double>(number));
}

template <typename Value>
void writeValue(JsonWriter &json, const Value &value)
{
    json.value(value);
}

template <typename Items>
void writeItems(Members &members, const char *key, const std::optional<Items> &items)
{
    if (!items)
        return;
    JsonWriter &json = members.key(key);
    json.beginArray();
    for (const auto &item : *items)
        writeValue(json, item);
    json.endArray();
}

template <typename Value>
void writeField(Members &members, const char *key, const std::optional<Value> &value)
{
    if (value)
        writeValue(members.key(key), *value);
}

void writePicture(JsonWriter &json, const QByteArray &picture)
{
    if (picture.isEmpty() || isPng(picture))
        json.base64(picture);
    else
        json.json(picture);
}

void writeViewData(Members &members, const ProjectViewData &viewData)
{
    if (viewData.kind != ProjectViewData::Kind::Given)
        return;
    Members view(members.key(kViewData), viewData.unknown);
    writeField(view, kMarkersAbsolute, viewData.markersAbsolute);
    writeItems(view, kOsziMaximum, viewData.osziMaximum);
    writeItems(view, kOsziMinimum, viewData.osziMinimum);
    view.end();
}

void writeMeasurement(JsonWriter &json, const SampleRun &run, Pacer &pacer)
{
    json.beginArray();
    for (int done = 0; done < run.count() && !json.hasFailed();) {
        const int part = qMin(kSamplesAtOnce, run.count() - done);
        json.values(run.data() + done, part);
        done += part;
        pacer.advance(part); // events may append samples and so move those of this list
    }
    json.endArray();
}

void writeSamples(Members &members, const ProjectDocument &document, Pacer &pacer)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const std::optional<SampleRuns> &runs = document.samples[at(sensor)];
        if (!runs)
            continue;
        JsonWriter &json = members.key(samples(sensor));
        json.beginArray();
        for (const SampleRun &run : *runs) {
            writeMeasurement(json, run, pacer);
            pacer.advance(1);
        }
        json.endArray();
    }
}

void writeHead(Members &members, const ProjectDocument &document)
{
    writeViewData(members, document.viewData);
    writeField(members, kClock, document.clock);
    writeField(members, kComment, document.comment);
    writeItems(members, kCorrections, document.corrections);
    writeField(members, kFileVersion, std::optional(QString::number(ProjectDocument::kFileVersion)));
    writeField(members, kHardwareVersion, document.hardwareVersion);
    writeItems(members, kMarkers, document.markers);
    writeField(members, kMesotraType, document.mesotraType);
}

void writeDescription(Members &members, const ProjectDocument &document)
{
    writeField(members, kClosingForce, document.closingForce);
    writeField(members, kInjectionTime, document.injectionTime);
    writeField(members, kPressure, document.pressure);
    writeField(members, kPressTime, document.pressTime);
    writeItems(members, kPhases, document.phases);
    writeField(members, kCustomer, document.customer);
    writeField(members, kDate, document.date);
    for (int i = 0; i < kNumProjectImages; ++i)
        writePicture(members.key(image(i)), document.images[at(i)]);
    writeField(members, kName, document.name);
    writeField(members, kNumber, document.number);
    writeField(members, kUser, document.user);
}

} // namespace

bool projectfile::write(QIODevice &target, const ProjectDocument &document, Pacer &pacer)
{
    JsonWriter json(target);
    // The keys in sorted order, as QJsonObject keeps them.
    Members members(json, document.rest.unknown);
    writeHead(members, document);
    writeDescription(members, document);
    writeSamples(members, document, pacer);
    writeItems(members, kSensorMaximum, document.sensorMaximum);
    writeItems(members, kSensorMinimum, document.sensorMinimum);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        writeField(members, sensorName(sensor).toLatin1().constData(), document.sensorNames[at(sensor)]);
    writeField(members, kFirmwareVersion, document.firmwareVersion);
    members.end();
    return json.finish();
}
