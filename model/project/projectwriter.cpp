#include "model/indexcheck.h"
#include "model/json/jsonwriter.h"
#include "model/project/pacer.h"
#include "model/project/projectfile.h"

namespace {

// Between two of them a single measurement looks at the clock.
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
void writeItems(JsonWriter &json, const char *key, const Items &items)
{
    json.key(key);
    json.beginArray();
    for (const auto &item : items)
        writeValue(json, item);
    json.endArray();
}

template <typename Value>
void writeField(JsonWriter &json, const char *key, const Value &value)
{
    json.key(key);
    writeValue(json, value);
}

void writeViewData(JsonWriter &json, const ProjectDocument &document)
{
    json.key("ViewData");
    json.beginObject();
    writeField(json, "checkBoxMarkerAbsolute", document.markersAbsolute);
    writeItems(json, "osziMaxValues", document.osziMaximum);
    writeItems(json, "osziMinValues", document.osziMinimum);
    json.endObject();
}

void writeMeasurement(JsonWriter &json, const SampleRun &run, Pacer &pacer)
{
    json.beginArray();
    for (int done = 0; done < run.count && !json.hasFailed();) {
        const int part = qMin(kSamplesAtOnce, run.count - done);
        json.values(run.samples->constData() + done, part);
        done += part;
        pacer.advance(part); // events may append samples and so move those of this list
    }
    json.endArray();
}

void writeSamples(JsonWriter &json, const ProjectDocument &document, Pacer &pacer)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        json.key(QByteArray("sensor ").append(QByteArray::number(sensor + 1)).constData());
        json.beginArray();
        for (const SampleRun &run : document.samples[at(sensor)]) {
            writeMeasurement(json, run, pacer);
            pacer.advance(1);
        }
        json.endArray();
    }
}

void writeDescription(JsonWriter &json, const ProjectDocument &document)
{
    const ProjectData &data = document.data;
    writeField(json, "paramClosingForce", data.closingForce);
    writeField(json, "paramInjectionTime", data.injectionTime);
    writeField(json, "paramPressure", data.pressure);
    writeField(json, "paramPressureTime", data.pressTime);
    writeItems(json, "phases", document.phases);
    writeField(json, "projectCustomer", data.customer);
    writeField(json, "projectDate", data.date);
    for (int image = 0; image < kNumProjectImages; ++image)
        writeField(json, imageKey(image).toLatin1().constData(),
                   QString::fromLatin1(document.images[at(image)].toBase64()));
    writeField(json, "projectName", data.name);
    writeField(json, "projectNumber", data.number);
    writeField(json, "projectUser", data.user);
}

} // namespace

qint64 ProjectDocument::sampleCount() const
{
    qint64 count = 0;
    for (const std::vector<SampleRun> &runs : samples) {
        for (const SampleRun &run : runs)
            count += run.count + 1; // an empty measurement is work as well
    }
    return count;
}

bool writeProject(QIODevice &target, const ProjectDocument &document, Pacer &pacer)
{
    JsonWriter json(target);
    json.beginObject();
    writeViewData(json, document);
    writeField(json, "clock", document.clock);
    writeField(json, "comment", document.comment);
    writeItems(json, "corrections", document.corrections);
    writeField(json, "fileVersion", QStringLiteral("7"));
    writeField(json, "hwVersion", document.hardwareVersion);
    writeItems(json, "markers", document.markers);
    writeField(json, "mesotraType", document.mesotraType);
    writeDescription(json, document);
    writeSamples(json, document, pacer);
    writeItems(json, "sensor maxValues", document.sensorMaximum);
    writeItems(json, "sensor minValues", document.sensorMinimum);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        writeField(json, sensorNameKey(sensor).toLatin1().constData(), document.sensorNames[at(sensor)]);
    writeField(json, "swVersion", document.softwareVersion);
    json.endObject();
    return json.finish();
}
