// How long the overlay page takes for what a user does, and for a new sample while a recording runs.

#include "benchmarks/pagebench.h"
#include "plots/evaluation/overlay/tabevaluationoverlay.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTableView>

#include <cmath>

namespace {

double cycle(int shot, int sample, int samplesPerShot)
{
    const double phase = 6.283 * (sample + shot % 13) / samplesPerShot;
    return 100.0 - 90.0 * std::cos(phase) + (sample * 31 + shot * 17) % 7;
}

// With everything switched on: alignment by a threshold, a reference, mean and band.
struct Bench : ModelPageBench<TabEvaluationOverlay>
{
    explicit Bench(const benchmark::State &state)
        : ModelPageBench(state, cycle)
        , threshold(find<QDoubleSpinBox>("spinBoxThreshold"))
    {
        page.setReferenceShot(0);
        find<QCheckBox>("checkMean")->setChecked(true);
        find<QCheckBox>("checkBand")->setChecked(true);
        auto *alignment = find<QComboBox>("comboAlignment");
        alignment->setCurrentIndex(alignment->count() - 2); // the rising threshold
        threshold->setValue(100.0);
        QApplication::processEvents();
    }
    QDoubleSpinBox *threshold;
};

void thresholdChanged(benchmark::State &state)
{
    Bench bench(state);
    double value = 100.0;
    for (auto _ : state) {
        bench.threshold->setValue(value = value > 150.0 ? 100.0 : value + 1.0);
        bench.page.repaint();
    }
}

// Only one sensor is cached: everything is computed again.
void sensorSwitched(benchmark::State &state)
{
    Bench bench(state);
    int sensor = 0;
    for (auto _ : state) {
        sensor = 1 - sensor;
        bench.chooseSensor(sensor);
        bench.page.repaint();
    }
}

// While the page was hidden the measurements changed, so that it kept nothing.
void pageShown(benchmark::State &state)
{
    Bench bench(state);
    for (auto _ : state) {
        bench.page.hide();
        (void)bench.model->appendMeasurement(0); // any change of the structure will do
        bench.model->emitDataChanged();
        bench.page.show();
        bench.page.repaint();
    }
}

void rowChosen(benchmark::State &state)
{
    Bench bench(state);
    auto *table = bench.page.findChild<QTableView *>();
    int row = 0;
    for (auto _ : state) {
        table->selectRow(row = (row + 1) % 10);
        bench.page.repaint();
    }
}

BENCHMARK(thresholdChanged)->Apply(manyShots);
BENCHMARK(sensorSwitched)->Apply(manyShots);
BENCHMARK(pageShown)->Apply(manyShots);
BENCHMARK(rowChosen)->Apply(manyShots);
BENCHMARK_TEMPLATE(sampleArrived, Bench)->Apply(manyShots);

} // namespace
