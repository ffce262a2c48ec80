// The project file of 1000 shots of 5 sensors with 600 samples each: Qt's own JSON classes with a text stream against
// the streaming writer and reader. Peak memory over the samples is measured by counting what malloc hands out.

#include "model/project/pacer.h"
#include "model/project/projectdocument.h"
#include "model/project/projectreader.h"
#include "model/project/projectwriter.h"

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <atomic>
#include <cmath>
#include <malloc.h>
#include <random>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void __libc_free(void *memory);
}

namespace {

std::atomic<qint64> s_inUse{0};
std::atomic<qint64> s_peak{0};

void *counted(void *memory)
{
    const qint64 now = s_inUse += static_cast<qint64>(malloc_usable_size(memory));
    if (now > s_peak)
        s_peak = now;
    return memory;
}

void uncount(void *memory)
{
    s_inUse -= static_cast<qint64>(malloc_usable_size(memory));
}

} // namespace

extern "C" {

void *malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

void *calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

void *realloc(void *memory, std::size_t size)
{
    uncount(memory);
    return counted(__libc_realloc(memory, size));
}

void free(void *memory)
{
    uncount(memory);
    __libc_free(memory);
}

} // extern "C"

namespace {

constexpr int kShots = 1000;
constexpr int kSamples = 600;

enum Values { Thousandths, AllDigits };

std::vector<SampleList> makeSamples(Values values)
{
    std::mt19937 random(7);
    std::normal_distribution<double> noise(0.0, 2.0);
    std::vector<SampleList> lists;
    for (int list = 0; list < kShots * kNumSensors; ++list) {
        SampleList samples;
        for (int i = 0; i < kSamples; ++i) {
            const double value = 120.0 * std::exp(-i / 200.0) + noise(random);
            samples.append(values == Thousandths ? std::round(value * 1000.0) / 1000.0 : value);
        }
        samples.squeeze();
        lists.push_back(samples);
    }
    return lists;
}

const std::vector<SampleList> &samplesOf(Values values)
{
    static const std::array<std::vector<SampleList>, 2> samples{makeSamples(Thousandths), makeSamples(AllDigits)};
    return samples[values];
}

ProjectDocument documentOf(Values values)
{
    ProjectDocument document;
    const std::vector<SampleList> &lists = samplesOf(values);
    for (std::optional<SampleRuns> &runs : document.samples)
        runs.emplace();
    for (std::size_t i = 0; i < lists.size(); ++i)
        document.samples[i % kNumSensors]->emplace_back(&lists[i], lists[i].size());
    return document;
}

QString folder()
{
    static const QTemporaryDir dir;
    return dir.path();
}

QString fileOf(Values values)
{
    return folder() + QStringLiteral("/%1.vnt").arg(values);
}

// Counts what is taken beyond what is in use when it is made.
class MemoryOver
{
public:
    MemoryOver() { s_peak = s_inUse.load(); }
    [[nodiscard]] double peakMegabytes() const { return static_cast<double>(s_peak - m_before) / 1e6; }
    /// What has stayed in use, such as the samples that were read.
    [[nodiscard]] double keptMegabytes() const { return static_cast<double>(s_inUse - m_before) / 1e6; }

private:
    const qint64 m_before = s_inUse;
};

QJsonObject toJson(const ProjectDocument &document)
{
    QJsonObject json;
    for (std::size_t sensor = 0; sensor < document.samples.size(); ++sensor) {
        QJsonArray measurements;
        for (const SampleRun &run : *document.samples[sensor]) {
            QJsonArray samples;
            for (int i = 0; i < run.count(); ++i)
                samples.append(run.data()[i]);
            measurements.append(samples);
        }
        json[QStringLiteral("sensor %1").arg(sensor + 1)] = measurements;
    }
    return json;
}

void writeWithQt(benchmark::State &state)
{
    const ProjectDocument document = documentOf(static_cast<Values>(state.range(0)));
    for (auto _ : state) {
        const MemoryOver memory;
        QFile file(folder() + QStringLiteral("/qt.vnt"));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
            state.SkipWithError("cannot write");
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        stream << QJsonDocument(toJson(document)).toJson();
        stream.flush();
        state.counters["MB_over"] = memory.peakMegabytes();
        state.counters["MB_file"] = static_cast<double>(file.size()) / 1e6;
    }
}

void writeStreaming(benchmark::State &state)
{
    const ProjectDocument document = documentOf(static_cast<Values>(state.range(0)));
    for (auto _ : state) {
        const MemoryOver memory;
        QFile file(fileOf(static_cast<Values>(state.range(0))));
        Pacer pacer([](int) {}, document.sampleCount());
        if (!file.open(QIODevice::WriteOnly) || !projectfile::write(file, document, pacer))
            state.SkipWithError("cannot write");
        state.counters["MB_over"] = memory.peakMegabytes();
        state.counters["MB_file"] = static_cast<double>(file.size()) / 1e6;
    }
}

void makeFile(benchmark::State &state)
{
    QFile file(fileOf(static_cast<Values>(state.range(0))));
    Pacer pacer([](int) {}, 1);
    if (!file.open(QIODevice::WriteOnly)
        || !projectfile::write(file, documentOf(static_cast<Values>(state.range(0))), pacer))
        state.SkipWithError("cannot write");
}

void readWithQt(benchmark::State &state)
{
    makeFile(state);
    for (auto _ : state) {
        const MemoryOver memory;
        QFile file(fileOf(static_cast<Values>(state.range(0))));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            state.SkipWithError("cannot read");
        std::vector<SampleList> lists;
        {
            const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
            for (int sensor = 1; sensor <= kNumSensors; ++sensor) {
                for (const QJsonValue measurement : json[QStringLiteral("sensor %1").arg(sensor)].toArray()) {
                    const QJsonArray values = measurement.toArray();
                    SampleList samples;
                    samples.reserve(values.size());
                    for (const QJsonValue value : values)
                        samples.append(value.toDouble());
                    lists.push_back(samples);
                }
            }
        }
        state.counters["MB_over"] = memory.peakMegabytes() - memory.keptMegabytes();
        state.counters["lists"] = static_cast<double>(lists.size());
    }
}

void readStreaming(benchmark::State &state)
{
    makeFile(state);
    for (auto _ : state) {
        const MemoryOver memory;
        QFile file(fileOf(static_cast<Values>(state.range(0))));
        if (!file.open(QIODevice::ReadOnly))
            state.SkipWithError("cannot read");
        Pacer pacer([](int) {}, file.size());
        const auto document = projectfile::read(file, pacer);
        if (!document)
            state.SkipWithError("not valid");
        state.counters["MB_over"] = memory.peakMegabytes() - memory.keptMegabytes();
        state.counters["lists"] = static_cast<double>(document->samples[0]->size() * kNumSensors);
    }
}

// Argument: 0 for values with three decimals, as the box sends them, 1 for values with all 17 digits.
BENCHMARK(writeWithQt)->Arg(Thousandths)->Arg(AllDigits)->Unit(benchmark::kMillisecond);
BENCHMARK(writeStreaming)->Arg(Thousandths)->Arg(AllDigits)->Unit(benchmark::kMillisecond);
BENCHMARK(readWithQt)->Arg(Thousandths)->Arg(AllDigits)->Unit(benchmark::kMillisecond);
BENCHMARK(readStreaming)->Arg(Thousandths)->Arg(AllDigits)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
