#pragma once

#include "app/startup.h"
#include "model/model.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLoggingCategory>

#include <memory>

// What the benchmarks of the evaluation's pages share.

/// The value of a sample of a shot.
using SampleAt = double (*)(int shot, int sample, int samplesPerShot);

inline double sawTooth(int shot, int sample, int)
{
    return 100.0 + sample % 97 + shot % 13;
}

/// As many shots as the benchmark's first argument says, of as many samples as its second.
inline std::unique_ptr<Model> modelFor(const benchmark::State &state, SampleAt sampleAt = sawTooth)
{
    const auto shots = static_cast<int>(state.range(0));
    const auto samplesPerShot = static_cast<int>(state.range(1));
    auto model = std::make_unique<Model>(QString());
    const QDateTime timestamp(QDate(2026, 3, 9), QTime(6, 0));
    for (int shot = 0; shot < shots; ++shot) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            (void)model->appendMeasurement(sensor); // its index is the shot
            for (int i = 0; i < samplesPerShot; ++i)
                (void)model->appendSample(sensor, shot, sampleAt(shot, i, samplesPerShot)); // both indices are right
        }
        model->setTimestamp(shot, timestamp.addSecs(30LL * shot));
    }
    return model;
}

/// A page of the size that it has in a window of 1280x800.
template <typename PageType>
struct ModelPageBench
{
    explicit ModelPageBench(const benchmark::State &state, SampleAt sampleAt = sawTooth)
        : model(modelFor(state, sampleAt))
        , newestShot(static_cast<int>(state.range(0)) - 1)
    {
        page.setModel(model.get());
        page.resize(1080, 640);
        page.show();
        QApplication::processEvents();
    }
    template <typename Widget>
    [[nodiscard]] Widget *find(const char *name) const
    {
        return page.template findChild<Widget *>(QLatin1String(name));
    }

    std::unique_ptr<Model> model;
    int newestShot;
    PageType page;
};

/// A sample comes in while the page is shown.
template <typename Bench>
void sampleArrived(benchmark::State &state)
{
    Bench bench(state);
    for (auto _ : state) {
        (void)bench.model->appendSample(0, bench.newestShot, 120.0); // both indices are right
        bench.page.update();
        bench.page.repaint();
    }
}

/// Many shots, and very many.
inline void manyShots(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({1000, 2000})->Args({10000, 200})->Unit(benchmark::kMillisecond);
}

/// The main function.
inline int runPageBenchmarks(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QApplication application(argc, argv);
    prepareApplication(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
