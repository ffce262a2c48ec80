// How long the evaluation's overview and page of values take for what a user does, and for a new sample.

#include "benchmarks/pagebench.h"
#include "plots/evaluation/common/limitfield.h"
#include "plots/evaluation/dashboard/dashboard.h"
#include "plots/evaluation/values/tabevaluationvalues.h"

#include <QCheckBox>
#include <QDoubleSpinBox>

namespace {

using ValuesBench = FigurePageBench<TabEvaluationValues>;

// The first look at a page: nothing of what it shows has been computed yet.
template <typename PageType>
void firstShown(benchmark::State &state)
{
    FigurePageBench<PageType> bench(state);
    int marker = 0;
    for (auto _ : state) {
        bench.page.hide();
        bench.model->setVerticalMarkerAbsolute(0, marker = 1 - marker); // makes all figures out of date
        bench.page.show();
        bench.page.repaint();
    }
}

// Coming back to a page.
template <typename PageType>
void shownAgain(benchmark::State &state)
{
    FigurePageBench<PageType> bench(state);
    for (auto _ : state)
        bench.hideAndShow();
}

void limitChanged(benchmark::State &state)
{
    ValuesBench bench(state);
    bench.show(bench.page.size());
    auto *field = bench.find<LimitField>("upperLimit");
    field->findChild<QCheckBox *>()->click();
    double value = 190.0;
    for (auto _ : state) {
        field->findChild<QDoubleSpinBox *>()->setValue(value += 0.001);
        bench.page.repaint();
    }
}

void sensorSwitched(benchmark::State &state)
{
    ValuesBench bench(state);
    bench.show(bench.page.size());
    int sensor = 0;
    for (auto _ : state) {
        bench.page.setCurrentSensor(sensor = 1 - sensor);
        bench.page.repaint();
    }
}

// One refresh while a recording runs.
template <typename PageType>
void sampleSeen(benchmark::State &state)
{
    FigurePageBench<PageType> bench(state);
    bench.show(bench.page.size());
    for (auto _ : state) {
        bench.appendSample();
        bench.hideAndShow();
    }
}

BENCHMARK_TEMPLATE(firstShown, Dashboard)->Apply(manyShots);
BENCHMARK_TEMPLATE(firstShown, TabEvaluationValues)->Apply(manyShots);
BENCHMARK_TEMPLATE(shownAgain, Dashboard)->Apply(manyShots);
BENCHMARK_TEMPLATE(shownAgain, TabEvaluationValues)->Apply(manyShots);
BENCHMARK_TEMPLATE(sampleSeen, Dashboard)->Apply(manyShots);
BENCHMARK_TEMPLATE(sampleSeen, TabEvaluationValues)->Apply(manyShots);
BENCHMARK(limitChanged)->Apply(manyShots);
BENCHMARK(sensorSwitched)->Apply(manyShots);

} // namespace
