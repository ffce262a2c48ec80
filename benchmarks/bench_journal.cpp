#include "model/journal/journaltracker.h"
#include "model/model.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>

namespace {

constexpr int kLinesPerTick = 250; // a line per millisecond, four looks a second

/// A project whose shots have all been written to the journal.
struct Stored
{
    explicit Stored(int shots)
    {
        model.setYield([](int) {});
        for (int shot = 0; shot < shots; ++shot)
            addShot();
        tracker.begin({}, {});
        write();
    }

    void addShot()
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const int shot = model.appendMeasurement(sensor);
            for (int i = 0; i < 50; ++i)
                (void)model.appendSample(sensor, shot, i * 0.5);
        }
        model.setTimestamp(model.numChannels(0) - 1, QDateTime::currentDateTime());
    }

    std::size_t write()
    {
        JournalDelta delta = tracker.changes(model.project(), model.changeCount(), QDateTime::currentDateTime());
        std::size_t bytes = 0;
        for (const QByteArray &block : delta.blocks)
            bytes += std::size_t(block.size());
        tracker.commit(std::move(delta));
        return bytes;
    }

    Model model{QString()};
    JournalTracker tracker;
};

/// One look for changes while recording.
void samplesOfATick(benchmark::State &state)
{
    Stored stored(int(state.range(0)));
    const int newest = stored.model.numChannels(0) - 1;
    for (auto step : state) {
        (void)step;
        state.PauseTiming();
        for (int line = 0; line < kLinesPerTick; ++line)
            for (int sensor = 0; sensor < kNumSensors; ++sensor)
                (void)stored.model.appendSample(sensor, newest, line);
        state.ResumeTiming();
        benchmark::DoNotOptimize(stored.write());
    }
}
BENCHMARK(samplesOfATick)->Arg(1)->Arg(10000)->Iterations(2000)->Unit(benchmark::kMicrosecond);

/// The look at which a new shot is found.
void aNewShot(benchmark::State &state)
{
    Stored stored(int(state.range(0)));
    for (auto step : state) {
        (void)step;
        state.PauseTiming();
        stored.addShot();
        state.ResumeTiming();
        benchmark::DoNotOptimize(stored.write());
    }
}
BENCHMARK(aNewShot)->Arg(1)->Arg(10000)->Iterations(200)->Unit(benchmark::kMicrosecond);

/// The look after an edit, as while somebody types.
void anEdit(benchmark::State &state)
{
    Stored stored(int(state.range(0)));
    int edits = 0;
    for (auto step : state) {
        (void)step;
        stored.model.setComment(QString::number(++edits));
        benchmark::DoNotOptimize(stored.write());
    }
}
BENCHMARK(anEdit)->Arg(1)->Arg(10000)->Iterations(200)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv); // a model has pictures
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
