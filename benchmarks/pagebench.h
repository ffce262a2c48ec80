#pragma once

#include "model/model.h"
#include "plots/evaluation/common/evaluationdata.h"

#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>

#include <memory>

// What the benchmarks of the evaluation's pages share; pagebench.cpp has their main function.

/// The value of a sample of a shot.
using SampleAt = double (*)(int shot, int sample, int samplesPerShot);

inline double sawTooth(int shot, int sample, int)
{
    return 100.0 + sample % 97 + shot % 13;
}

/// The number of shots is the benchmark's first argument, the number of samples in each is its second.
[[nodiscard]] std::unique_ptr<Model> modelFor(const benchmark::State &state, SampleAt sampleAt = sawTooth);

/// Many shots, and very many.
void manyShots(benchmark::internal::Benchmark *benchmark);

/// A page and its model.
template <typename PageType>
struct PageBench
{
    explicit PageBench(const benchmark::State &state, SampleAt sampleAt = sawTooth)
        : model(modelFor(state, sampleAt))
        , newestShot(static_cast<int>(state.range(0)) - 1)
    {}
    template <typename Widget>
    [[nodiscard]] Widget *find(const char *name) const
    {
        return page.template findChild<Widget *>(QLatin1String(name));
    }
    void chooseSensor(int sensor) const
    {
        page.template findChild<QAbstractButton *>(QStringLiteral("sensorButton%1").arg(sensor))->setChecked(true);
    }
    /// Appends to the shot that is being recorded.
    void appendSample() { (void)model->appendSample(0, newestShot, 120.0); } // both indices are right
    /// Until it is painted.
    void show(QSize size)
    {
        page.resize(size);
        page.show();
        QApplication::processEvents();
    }

    std::unique_ptr<Model> model;
    int newestShot;
    PageType page;
};

/// A visible page that follows the model directly, in the size that it has in a window of 1280x800.
template <typename PageType>
struct ModelPageBench : PageBench<PageType>
{
    explicit ModelPageBench(const benchmark::State &state, SampleAt sampleAt = sawTooth)
        : PageBench<PageType>(state, sampleAt)
    {
        this->page.setModel(this->model.get());
        this->show({1080, 640});
    }
};

/// A page of figures, in the size that it has in a window of 1280x800, but not visible yet.
template <typename PageType>
struct FigurePageBench : PageBench<PageType>
{
    explicit FigurePageBench(const benchmark::State &state)
        : PageBench<PageType>(state)
    {
        for (int marker = 0; marker < Model::kNumMarkers; ++marker)
            this->model->setVerticalMarkerAbsolute(marker, static_cast<int>(state.range(1)) * (marker + 1) / 6);
        data.setModel(this->model.get());
        this->page.setData(&data);
        this->page.resize(1080, 590);
    }
    void hideAndShow()
    {
        this->page.hide();
        this->page.show(); // brings the page up to date
        this->page.repaint();
    }

    EvaluationData data;
};

/// A sample is recorded while the page is visible.
template <typename Bench>
void sampleArrived(benchmark::State &state)
{
    Bench bench(state);
    for (auto _ : state) {
        bench.appendSample();
        bench.page.update();
        bench.page.repaint();
    }
}
