// What a number costs in the CSV export: through the locale and a text stream, and as the export writes it; and the
// export of a whole project with the longest time in which the window gets no turn.

#include "model/model.h"
#include "model/project/csvexport.h"
#include "model/project/germannumber.h"
#include "model/project/pacer.h"
#include "model/project/projectdocument.h"

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>
#include <random>

namespace {

constexpr int kNumbers = 100000;

SampleList measuredValues(int count)
{
    std::mt19937 engine(1);
    std::uniform_int_distribution<int> thousandths(-300000, 2000000);
    SampleList values;
    values.reserve(count);
    for (int i = 0; i < count; ++i)
        values.append(thousandths(engine) / 1000.0);
    return values;
}

void numbersThroughTheLocale(benchmark::State &state)
{
    const SampleList values = measuredValues(kNumbers);
    const QLocale german(QLocale::German);
    for (auto _ : state) {
        QByteArray bytes;
        bytes.reserve(kNumbers * 10);
        QTextStream stream(&bytes);
        for (double value : values)
            stream << german.toString(value, 'g', 6);
        stream.flush();
        benchmark::DoNotOptimize(bytes.data());
    }
    state.SetItemsProcessed(state.iterations() * kNumbers);
}

void numbersAsTheExportWritesThem(benchmark::State &state)
{
    const SampleList values = measuredValues(kNumbers);
    QByteArray bytes(kNumbers * kMaxGermanNumberLength, '\0');
    for (auto _ : state) {
        char *end = bytes.data();
        for (double value : values)
            end = writeGermanNumber(end, value);
        benchmark::DoNotOptimize(end);
    }
    state.SetItemsProcessed(state.iterations() * kNumbers);
}

void exportToMemory(benchmark::State &state)
{
    const SampleList values = measuredValues(kNumbers);
    ProjectDocument document;
    document.samples[0].emplace().emplace_back(&values, values.size());
    for (auto _ : state) {
        QBuffer buffer;
        (void)buffer.open(QIODevice::WriteOnly); // never fails
        Pacer pacer([](int) {}, kNumbers);
        benchmark::DoNotOptimize(writeCsv(buffer, QStringLiteral("a.vnt"), document, pacer));
    }
    state.SetItemsProcessed(state.iterations() * kNumbers);
}

/// About 200 MB on disk.
void exportOfAWholeDay(benchmark::State &state)
{
    constexpr int kShots = 500;
    constexpr int kSamples = 10000;
    Model model{QString()};
    const SampleList values = measuredValues(kSamples);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        for (int shot = 0; shot < kShots; ++shot) {
            (void)model.appendMeasurement(sensor); // its index is the shot
            for (double value : values)
                (void)model.appendSample(sensor, shot, value); // both indices are right
        }
    }
    QElapsedTimer sinceTurn;
    qint64 longest = 0;
    model.setYield([&](int) {
        longest = std::max(longest, sinceTurn.elapsed());
        QCoreApplication::processEvents();
        sinceTurn.start();
    });
    const QString file = QDir::temp().filePath(QStringLiteral("bench_csv.csv"));
    for (auto _ : state) {
        sinceTurn.start();
        if (!model.saveCsv(file))
            state.SkipWithError("not written");
        longest = std::max(longest, sinceTurn.elapsed());
    }
    state.counters["longest_gap_ms"] = static_cast<double>(longest);
    state.counters["megabytes"] = static_cast<double>(QFileInfo(file).size()) / 1e6;
    (void)QFile::remove(file); // a leftover in the folder for temporary files does no harm
}

BENCHMARK(numbersThroughTheLocale)->Unit(benchmark::kMillisecond);
BENCHMARK(numbersAsTheExportWritesThem)->Unit(benchmark::kMillisecond);
BENCHMARK(exportToMemory)->Unit(benchmark::kMillisecond);
BENCHMARK(exportOfAWholeDay)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
