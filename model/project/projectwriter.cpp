#include "model/project/projectwriter.h"

#include "model/arrayindex.h"
#include "model/json/jsonwriter.h"
#include "model/project/pacer.h"
#include "model/project/projectdocument.h"
#include "model/project/projectkeys.h"

namespace {

using namespace projectkeys;

// Samples of a measurement that are written before the pacer checks the clock.
constexpr int kSamplesAtOnce = 512;

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
void writeItems(JsonWriter &json, const char *key, const std::optional<Items> &items)
{
    if (!items)
        return;
    json.key(key);
    json.beginArray();
    for (const auto &item : *items)
        writeValue(json, item);
    json.endArray();
}

template <typename Value>
void writeField(JsonWriter &json, const char *key, const std::optional<Value> &value)
{
    if (!value)
        return;
    json.key(key);
    writeValue(json, *value);
}

void writeField(JsonWriter &json, const QString &key, const std::optional<QString> &text)
{
    writeField(json, key.toLatin1().constData(), text);
}

void writeViewData(JsonWriter &json, const ProjectViewData &viewData)
{
    if (viewData.kind != ProjectViewData::Kind::Given)
        return;
    json.key(kViewData);
    json.beginObject();
    writeField(json, kMarkersAbsolute, viewData.markersAbsolute);
    writeItems(json, kOsziMaximum, viewData.osziMaximum);
    writeItems(json, kOsziMinimum, viewData.osziMinimum);
    json.endObject();
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

void writeSamples(JsonWriter &json, const ProjectDocument &document, Pacer &pacer)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const std::optional<SampleRuns> &runs = document.samples[at(sensor)];
        if (!runs)
            continue;
        json.key(samples(sensor).toLatin1().constData());
        json.beginArray();
        for (const SampleRun &run : *runs) {
            writeMeasurement(json, run, pacer);
            pacer.advance(1);
        }
        json.endArray();
    }
}

void writeHead(JsonWriter &json, const ProjectDocument &document)
{
    writeViewData(json, document.viewData);
    writeField(json, kClock, document.clock);
    writeField(json, kComment, document.comment);
    writeItems(json, kCorrections, document.corrections);
    writeField(json, kFileVersion, std::optional(QStringLiteral("7")));
    writeField(json, kHardwareVersion, document.hardwareVersion);
    writeItems(json, kMarkers, document.markers);
    writeField(json, kMesotraType, document.mesotraType);
}

void writeDescription(JsonWriter &json, const ProjectDocument &document)
{
    writeField(json, kClosingForce, document.closingForce);
    writeField(json, kInjectionTime, document.injectionTime);
    writeField(json, kPressure, document.pressure);
    writeField(json, kPressTime, document.pressTime);
    writeItems(json, kPhases, document.phases);
    writeField(json, kCustomer, document.customer);
    writeField(json, kDate, document.date);
    for (int i = 0; i < kNumProjectImages; ++i)
        writeField(json, image(i), QString::fromLatin1(document.images[at(i)].toBase64()));
    writeField(json, kName, document.name);
    writeField(json, kNumber, document.number);
    writeField(json, kUser, document.user);
}

} // namespace

bool projectfile::write(QIODevice &target, const ProjectDocument &document, Pacer &pacer)
{
    JsonWriter json(target);
    json.beginObject();
    // The keys in sorted order, as QJsonObject keeps them.
    writeHead(json, document);
    writeDescription(json, document);
    writeSamples(json, document, pacer);
    writeItems(json, kSensorMaximum, document.sensorMaximum);
    writeItems(json, kSensorMinimum, document.sensorMinimum);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        writeField(json, sensorName(sensor), document.sensorNames[at(sensor)]);
    writeField(json, kFirmwareVersion, document.firmwareVersion);
    json.endObject();
    return json.finish();
}
