// How long the evaluation's overview and page of values take for what a user does, and for a new sample.

#include "app/stylesheets.h"
#include "model/model.h"
#include "plots/dashboard.h"
#include "plots/evaluationdata.h"
#include "plots/limitfield.h"
#include "plots/tabevaluationvalues.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLoggingCategory>

#include <memory>

namespace {

std::unique_ptr<Model> modelWith(int shots, int samplesPerShot)
{
    auto model = std::make_unique<Model>(QString());
    const QDateTime timestamp(QDate(2026, 3, 9), QTime(6, 0));
    for (int shot = 0; shot < shots; ++shot) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            (void)model->appendMeasurement(sensor); // its index is the shot
            for (int i = 0; i < samplesPerShot; ++i)
                (void)model->appendSample(sensor, shot, 100.0 + i % 97 + shot % 13); // both indices are right
        }
        model->setTimestamp(shot, timestamp.addSecs(30LL * shot));
    }
    for (int marker = 0; marker < Model::kNumMarkers; ++marker)
        model->setVerticalMarkerAbsolute(marker, samplesPerShot * (marker + 1) / 6);
    return model;
}

template <typename PageType>
struct Page
{
    explicit Page(benchmark::State &state)
        : model(modelWith(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))))
    {
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
void sampleArrived(benchmark::State &state)
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

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({1000, 2000})->Args({10000, 200})->Unit(benchmark::kMillisecond);
}

BENCHMARK_TEMPLATE(firstShown, Dashboard)->Apply(sizes);
BENCHMARK_TEMPLATE(firstShown, TabEvaluationValues)->Apply(sizes);
BENCHMARK_TEMPLATE(shownAgain, Dashboard)->Apply(sizes);
BENCHMARK_TEMPLATE(shownAgain, TabEvaluationValues)->Apply(sizes);
BENCHMARK_TEMPLATE(sampleArrived, Dashboard)->Apply(sizes);
BENCHMARK_TEMPLATE(sampleArrived, TabEvaluationValues)->Apply(sizes);
BENCHMARK(limitChanged)->Apply(sizes);
BENCHMARK(sensorSwitched)->Apply(sizes);

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
