// How long the runtime page takes for what a user does, and for a new sample while a recording runs.

#include "app/stylesheets.h"
#include "model/model.h"
#include "plots/tabevaluationruntime.h"

#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QLoggingCategory>

#include <memory>

namespace {

std::unique_ptr<Model> modelWith(int shots, int samplesPerShot)
{
    auto model = std::make_unique<Model>(QString());
    QDateTime timestamp(QDate(2026, 3, 9), QTime(6, 0));
    for (int shot = 0; shot < shots; ++shot) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            (void)model->appendMeasurement(sensor); // its index is the shot
            for (int i = 0; i < samplesPerShot; ++i)
                (void)model->appendSample(sensor, shot, 100.0 + i % 97 + shot % 13); // both indices are right
        }
        model->setTimestamp(shot, timestamp.addSecs(30LL * shot));
    }
    return model;
}

struct Page
{
    explicit Page(int shots, int samplesPerShot)
        : model(modelWith(shots, samplesPerShot))
    {
        page.setModel(model.get());
        page.resize(1080, 640);
        page.show();
        QApplication::processEvents();
    }
    std::unique_ptr<Model> model;
    TabEvaluationRuntime page;
};

// No sample lies below either threshold: every shot is searched to its end, from both sides.
void thresholdChanged(benchmark::State &state)
{
    Page page(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    auto *threshold = page.page.findChild<QDoubleSpinBox *>(QStringLiteral("spinBoxStartValue"));
    double value = 0.0;
    for (auto _ : state) {
        threshold->setValue(value += 0.01);
        page.page.repaint();
    }
}

// The offset makes results of both sensors out of date each time.
void sensorSwitched(benchmark::State &state)
{
    Page page(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    int sensor = 0;
    double offset = 0.0;
    for (auto _ : state) {
        sensor = 1 - sensor;
        page.model->setOffset(sensor, offset += 0.01);
        page.page.findChild<QAbstractButton *>(QStringLiteral("sensorButton%1").arg(sensor))->setChecked(true);
        page.page.repaint();
    }
}

void sampleArrived(benchmark::State &state)
{
    Page page(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const int shot = static_cast<int>(state.range(0)) - 1;
    for (auto _ : state) {
        (void)page.model->appendSample(0, shot, 120.0); // both indices are right
        page.page.update();
        page.page.repaint();
    }
}

BENCHMARK(thresholdChanged)->Args({1000, 2000})->Args({10000, 200})->Unit(benchmark::kMillisecond);
BENCHMARK(sensorSwitched)->Args({1000, 2000})->Args({10000, 200})->Unit(benchmark::kMillisecond);
BENCHMARK(sampleArrived)->Args({1000, 2000})->Args({10000, 200})->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    application.setStyleSheet(theme::styleApplication);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
