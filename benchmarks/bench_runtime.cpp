// How long the runtime page takes for what a user does, and for a new sample while a recording runs.

#include "benchmarks/pagebench.h"
#include "plots/evaluation/runtime/tabevaluationruntime.h"

#include <QDoubleSpinBox>

namespace {

using Bench = ModelPageBench<TabEvaluationRuntime>;

// No sample is below either threshold: every shot is searched completely, from both sides.
void thresholdChanged(benchmark::State &state)
{
    Bench bench(state);
    auto *threshold = bench.find<QDoubleSpinBox>("spinBoxStartValue");
    double value = 0.0;
    for (auto _ : state) {
        threshold->setValue(value += 0.01);
        bench.page.repaint();
    }
}

// The offset makes results of both sensors out of date each time.
void sensorSwitched(benchmark::State &state)
{
    Bench bench(state);
    int sensor = 0;
    double offset = 0.0;
    for (auto _ : state) {
        sensor = 1 - sensor;
        bench.model->setOffset(sensor, offset += 0.01);
        bench.chooseSensor(sensor);
        bench.page.repaint();
    }
}

BENCHMARK(thresholdChanged)->Apply(manyShots);
BENCHMARK(sensorSwitched)->Apply(manyShots);
BENCHMARK_TEMPLATE(sampleArrived, Bench)->Apply(manyShots);

} // namespace
