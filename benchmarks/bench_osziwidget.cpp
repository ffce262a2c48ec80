// How long a row of the oscilloscope takes to paint: 1200 x 220 pixels, shots of 2000 samples.

#include "plots/oscilloscope/curvelayer.h"
#include "plots/oscilloscope/labelcache.h"
#include "plots/oscilloscope/oszipainter.h"
#include "plots/oscilloscope/osziwidget.h"

#include <QApplication>
#include <QImage>
#include <QLoggingCategory>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <random>
#include <vector>

namespace {

constexpr int kSamples = 2000;
constexpr QSize kRow(1200, 220);

enum Look { Shots, Scattered, Noise, Colors };

const char *nameOf(int look)
{
    static const char *const names[] = {"shots", "scattered", "noise", "colours"};
    return names[look];
}

/// Shots of a process that repeats with small deviations, or curves all over the row.
SampleList shot(std::mt19937 &random, int look)
{
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const double phase = look == Scattered || look == Colors ? 6.3 * unit(random) : 0.1 * unit(random);
    const double level = look == Scattered || look == Colors ? 40.0 + 175.0 * unit(random) : 120.0 + 8.0 * unit(random);
    SampleList samples(kSamples);
    for (int k = 0; k < kSamples; ++k) {
        samples[k] =
            look == Noise ? 255.0 * unit(random) : level + 70.0 * std::sin(k / 90.0 + phase) + 3.0 * unit(random);
    }
    return samples;
}

/// `count` different shots, made once.
const std::vector<SampleList> &shots(int look, size_t count)
{
    static std::vector<SampleList> made[4];
    std::mt19937 random{unsigned(look)};
    std::vector<SampleList> &list = made[look];
    if (list.size() != count) {
        list.clear();
        list.reserve(count);
        while (list.size() < count)
            list.push_back(shot(random, look));
    }
    return list;
}

QColor colorOf(int look, int slot)
{
    return look == Colors ? QColor::fromHsv(slot * 7 % 360, 255, 180) : QColor(Qt::black);
}

OsziScene sceneOf(int look, int count, int zoom, int height)
{
    OsziScene scene;
    scene.geometry.widgetWidth = kRow.width();
    scene.geometry.width = kRow.width() - 2;
    scene.geometry.height = height;
    scene.geometry.margin = 20;
    scene.geometry.zoom = zoom;
    scene.curves.resize(OsziWidget::kNumSlots);
    const std::vector<SampleList> &lists = shots(look, size_t(count));
    for (int i = 0; i < count; ++i)
        scene.curves[size_t(i)] = {&lists[size_t(i)], colorOf(look, i), true, 0.0};
    return scene;
}

void plainCurves(benchmark::State &state)
{
    const OsziScene scene = sceneOf(int(state.range(0)), int(state.range(1)), int(state.range(2)), int(state.range(3)));
    QImage image(kRow.width(), scene.geometry.height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (auto _ : state) {
        QPainter painter(&image);
        oszipainter::paintCurves(painter, scene);
    }
    state.SetLabel(nameOf(int(state.range(0))));
}

void keptCurves(benchmark::State &state)
{
    const OsziScene scene = sceneOf(int(state.range(0)), int(state.range(1)), int(state.range(2)), int(state.range(3)));
    CurveLayer layer;
    for (auto _ : state) {
        layer.invalidate();
        benchmark::DoNotOptimize(layer.update(scene));
    }
    state.SetLabel(nameOf(int(state.range(0))));
}

void imageCopy(benchmark::State &state)
{
    QImage from(kRow, QImage::Format_RGB32);
    from.fill(Qt::white);
    QImage to = from.copy();
    for (auto _ : state) {
        memcpy(to.bits(), from.constBits(), size_t(from.sizeInBytes()));
        benchmark::ClobberMemory();
    }
}

/// A shown row with `count` shots, the newest highlighted, four markers and two reference lines.
struct Row
{
    explicit Row(int count)
        : lists(shots(Shots, size_t(count)))
    {
        lists.back().reserve(10 * kSamples);
        plot.setStyleSheet(QStringLiteral("OsziWidget { background-color: white; }"));
        plot.resize(kRow);
        plot.setVerticalMarkerCount(4);
        for (int i = 0; i < 4; ++i) {
            plot.setVerticalMarker(i, 150 * (i + 1), Qt::darkGreen);
            plot.setPhaseName(i, QStringLiteral("Einspritzzeit"));
        }
        plot.setHorizontalLineCount(2);
        plot.setHorizontalLine(0, 60.0, Qt::darkRed);
        plot.setHorizontalLine(1, 190.0, Qt::darkBlue);
        for (int i = 0; i < count; ++i)
            plot.setCurve(i, &lists[size_t(i)], Qt::black, true);
        plot.highlightSingle(count - 1);
        plot.show();
        settle();
    }

    void settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }

    /// What an update() leads to, without waiting for the display.
    void paintNow() { QCoreApplication::sendPostedEvents(&plot, QEvent::UpdateRequest); }

    std::vector<SampleList> lists;
    OsziWidget plot;
};

void fixedParts(benchmark::State &state)
{
    Row row(1);
    for (auto _ : state) {
        row.plot.update();
        row.paintNow();
    }
}

void liveFrame(benchmark::State &state)
{
    Row row(int(state.range(0)));
    SampleList &newest = row.lists.back();
    const int grown = int(state.range(1));
    newest.resize(100);
    row.plot.refresh();
    row.settle();
    for (auto _ : state) {
        if (newest.size() > 1000) {
            state.PauseTiming();
            newest.resize(100);
            row.plot.refresh();
            row.settle();
            state.ResumeTiming();
        }
        for (int i = 0; i < grown; ++i)
            newest.append(120.0 + 70.0 * std::sin(newest.size() / 90.0));
        row.plot.samplesAppended();
        row.paintNow();
    }
}

void scroll(benchmark::State &state)
{
    Row row(int(state.range(0)));
    const int step = int(state.range(1));
    int start = 0;
    int direction = 1;
    for (auto _ : state) {
        if (start + direction * step > 800 || start + direction * step < 0)
            direction = -direction;
        start += direction * step;
        row.plot.setStartIndex(start);
        row.paintNow();
    }
}

void fullPaint(benchmark::State &state)
{
    Row row(int(state.range(0)));
    for (auto _ : state) {
        row.plot.refresh();
        row.paintNow();
    }
}

void eachLook(benchmark::internal::Benchmark *bench)
{
    for (const int count : {100, 1000, 10000}) {
        for (const int look : {Shots, Scattered, Noise, Colors})
            bench->Args({look, count, 1, kRow.height()});
    }
    bench->Unit(benchmark::kMicrosecond);
}

void otherSizes(benchmark::internal::Benchmark *bench)
{
    for (const int look : {Shots, Scattered, Noise}) {
        for (const int zoom : {2, 5, 20})
            bench->Args({look, 1000, zoom, kRow.height()});
        bench->Args({look, 1000, 1, 900});
    }
    bench->Unit(benchmark::kMicrosecond);
}

void eachStore(benchmark::internal::Benchmark *bench)
{
    bench->ArgsProduct({{100, 1000, 10000}, {1, 10, 50}})->Unit(benchmark::kMicrosecond);
}

BENCHMARK(imageCopy)->Unit(benchmark::kMicrosecond);
BENCHMARK(fixedParts)->Unit(benchmark::kMicrosecond);
BENCHMARK(liveFrame)->Apply(eachStore);
BENCHMARK(scroll)->Apply(eachStore);
BENCHMARK(fullPaint)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(keptCurves)->Apply(eachLook);
BENCHMARK(keptCurves)->Apply(otherSizes);
BENCHMARK(plainCurves)->Apply(eachLook);
BENCHMARK(plainCurves)->Apply(otherSizes);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("ventaro.*=false"));
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
