// How long the overlay page takes for what a user does, and for a new sample while a recording runs.

#include "app/stylesheets.h"
#include "model/model.h"
#include "plots/tabevaluationoverlay.h"

#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLoggingCategory>
#include <QTableView>

#include <cmath>
#include <memory>

namespace {

std::unique_ptr<Model> modelWith(int shots, int samplesPerShot)
{
    auto model = std::make_unique<Model>(QString());
    QDateTime timestamp(QDate(2026, 3, 9), QTime(6, 0));
    for (int shot = 0; shot < shots; ++shot) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            (void)model->appendMeasurement(sensor); // its index is the shot
            for (int i = 0; i < samplesPerShot; ++i) {
                const double phase = 6.283 * (i + shot % 13) / samplesPerShot;
                const double value = 100.0 - 90.0 * std::cos(phase) + (i * 31 + shot * 17) % 7;
                (void)model->appendSample(sensor, shot, value); // both indices are right
            }
        }
        model->setTimestamp(shot, timestamp.addSecs(30LL * shot));
    }
    return model;
}

// With everything switched on: aligned by a threshold, a reference, mean and band.
struct Page
{
    explicit Page(const benchmark::State &state)
        : model(modelWith(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))))
    {
        page.setModel(model.get());
        page.resize(1080, 640);
        page.show();
        page.setReferenceShot(0);
        page.findChild<QCheckBox *>(QStringLiteral("checkMean"))->setChecked(true);
        page.findChild<QCheckBox *>(QStringLiteral("checkBand"))->setChecked(true);
        auto *alignment = page.findChild<QComboBox *>(QStringLiteral("comboAlignment"));
        alignment->setCurrentIndex(alignment->count() - 2); // the threshold, coming from below
        threshold = page.findChild<QDoubleSpinBox *>(QStringLiteral("spinBoxThreshold"));
        threshold->setValue(100.0);
        QApplication::processEvents();
    }
    std::unique_ptr<Model> model;
    TabEvaluationOverlay page;
    QDoubleSpinBox *threshold = nullptr;
};

void thresholdChanged(benchmark::State &state)
{
    Page page(state);
    double value = 100.0;
    for (auto _ : state) {
        page.threshold->setValue(value = value > 150.0 ? 100.0 : value + 1.0);
        page.page.repaint();
    }
}

// The caches are of one sensor: everything is found out anew.
void sensorSwitched(benchmark::State &state)
{
    Page page(state);
    int sensor = 0;
    for (auto _ : state) {
        sensor = 1 - sensor;
        page.page.findChild<QAbstractButton *>(QStringLiteral("sensorButton%1").arg(sensor))->setChecked(true);
        page.page.repaint();
    }
}

// A measurement was removed meanwhile, so that the page kept nothing.
void pageShown(benchmark::State &state)
{
    Page page(state);
    for (auto _ : state) {
        page.page.hide();
        (void)page.model->appendMeasurement(0); // only the change counts
        page.model->emitDataChanged();
        page.page.show();
        page.page.repaint();
    }
}

void rowChosen(benchmark::State &state)
{
    Page page(state);
    auto *table = page.page.findChild<QTableView *>();
    int row = 0;
    for (auto _ : state) {
        table->selectRow(row = (row + 1) % 10);
        page.page.repaint();
    }
}

void sampleArrived(benchmark::State &state)
{
    Page page(state);
    const int shot = static_cast<int>(state.range(0)) - 1;
    for (auto _ : state) {
        (void)page.model->appendSample(0, shot, 120.0); // both indices are right
        page.page.update();
        page.page.repaint();
    }
}

void shots(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({1000, 2000})->Args({10000, 200})->Unit(benchmark::kMillisecond);
}

BENCHMARK(thresholdChanged)->Apply(shots);
BENCHMARK(sensorSwitched)->Apply(shots);
BENCHMARK(pageShown)->Apply(shots);
BENCHMARK(rowChosen)->Apply(shots);
BENCHMARK(sampleArrived)->Apply(shots);

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
