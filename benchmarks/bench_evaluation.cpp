// How long the evaluation's overview and page of values take for what a user does, and for a new sample.

#include "benchmarks/pagebench.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/common/limitfield.h"
#include "plots/evaluation/dashboard/dashboard.h"
#include "plots/evaluation/values/tabevaluationvalues.h"

#include <QCheckBox>
#include <QDoubleSpinBox>

namespace {

template <typename PageType>
struct Page
{
    explicit Page(benchmark::State &state)
        : model(modelFor(state))
    {
        for (int marker = 0; marker < Model::kNumMarkers; ++marker)
            model->setVerticalMarkerAbsolute(marker, static_cast<int>(state.range(1)) * (marker + 1) / 6);
        data.setModel(model.get());
        page.setData(&data);
        page.resize(1080, 590);
    }
    /// Until it is painted.
    void showNow()
    {
        page.show();
        QApplication::processEvents();
    }
    std::unique_ptr<Model> model;
    EvaluationData data;
    PageType page;
};

// The first look at a page: nothing of what it shows has been computed yet.
template <typename PageType>
void firstShown(benchmark::State &state)
{
    Page<PageType> page(state);
    int marker = 0;
    for (auto _ : state) {
        page.page.hide();
        page.model->setVerticalMarkerAbsolute(0, marker = 1 - marker); // makes all figures out of date
        page.page.show();
        page.page.repaint();
    }
}

// Coming back to a page.
template <typename PageType>
void shownAgain(benchmark::State &state)
{
    Page<PageType> page(state);
    for (auto _ : state) {
        page.page.hide();
        page.page.show();
        page.page.repaint();
    }
}

void limitChanged(benchmark::State &state)
{
    Page<TabEvaluationValues> page(state);
    page.showNow();
    auto *field = page.page.template findChild<LimitField *>(QStringLiteral("upperLimit"));
    field->template findChild<QCheckBox *>()->click();
    double value = 190.0;
    for (auto _ : state) {
        field->template findChild<QDoubleSpinBox *>()->setValue(value += 0.001);
        page.page.repaint();
    }
}

void sensorSwitched(benchmark::State &state)
{
    Page<TabEvaluationValues> page(state);
    page.showNow();
    int sensor = 0;
    for (auto _ : state) {
        page.page.setCurrentSensor(sensor = 1 - sensor);
        page.page.repaint();
    }
}

// One refresh while a recording runs.
template <typename PageType>
void sampleSeen(benchmark::State &state)
{
    Page<PageType> page(state);
    const int shot = static_cast<int>(state.range(0)) - 1;
    page.showNow();
    for (auto _ : state) {
        (void)page.model->appendSample(0, shot, 120.0); // both indices are right
        page.page.hide();
        page.page.show(); // brings the page up to date
        page.page.repaint();
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

int main(int argc, char **argv)
{
    return runPageBenchmarks(argc, argv);
}
