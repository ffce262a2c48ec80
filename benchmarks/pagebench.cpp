#include "benchmarks/pagebench.h"

#include "app/startup.h"

#include <QDateTime>
#include <QLoggingCategory>

std::unique_ptr<Model> modelFor(const benchmark::State &state, SampleAt sampleAt)
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

void manyShots(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({1000, 2000})->Args({10000, 200})->Unit(benchmark::kMillisecond);
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QApplication application(argc, argv);
    prepareApplication(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
