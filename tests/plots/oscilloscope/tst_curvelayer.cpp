#include "plots/oscilloscope/curvelayer.h"
#include "plots/oscilloscope/oszipainter.h"
#include "tests/support/rows.h"

#include <QPainter>

#include <cmath>
#include <deque>
#include <functional>
#include <random>

namespace {

using Random = std::mt19937;

int between(Random &random, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(random);
}

double real(Random &random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// A family of random scenes.
struct Kind
{
    int height = 220;
    int curves = 20;
    int samples = 400; ///< at most
    int colors = 1;
    int largestZoom = 1;
    double noise = 2.0;
    double reach = 100.0; ///< values run from -reach / 2 to 1.5 reach around a range of 0 to 100
    int shift = 0;        ///< largest shift either way
    double jumps = 0.0;   ///< share of samples that jump anywhere within reach
};

/// Curves with the lists they point at.
struct World
{
    OsziScene scene;
    std::deque<SampleList> lists;
};

SampleList randomSamples(Random &random, const Kind &kind)
{
    SampleList samples;
    const int count = between(random, 0, 9) == 0 ? between(random, 0, 3) : between(random, 1, kind.samples);
    const double phase = real(random, 0.0, 6.3);
    const double center = real(random, 0.2, 0.8) * kind.reach;
    for (int k = 0; k < count; ++k) {
        double value = center + 0.4 * kind.reach * std::sin(k / 40.0 + phase) + real(random, -0.5, 0.5) * kind.noise;
        if (kind.jumps > 0.0 && real(random, 0.0, 1.0) < kind.jumps)
            value = real(random, -0.5, 1.5) * kind.reach;
        samples.append(value);
    }
    return samples;
}

void fillGeometry(Random &random, const Kind &kind, PlotGeometry &geometry)
{
    geometry.width = between(random, 75, 398);
    geometry.widgetWidth = geometry.width + 2;
    geometry.height = kind.height + between(random, -9, 9);
    geometry.margin = between(random, 0, 20);
    geometry.minValue = 0.0;
    geometry.maxValue = 100.0;
    geometry.zoom = between(random, 1, kind.largestZoom);
    geometry.startIndex = between(random, -60, kind.samples);
    if (between(random, 0, 1))
        geometry.startIndex = 0;
}

void fillWorld(Random &random, const Kind &kind, World &world)
{
    fillGeometry(random, kind, world.scene.geometry);
    world.scene.curves.resize(size_t(kind.curves) + 3);
    for (int i = 0; i < kind.curves; ++i) {
        world.lists.push_back(randomSamples(random, kind));
        OsziCurve &curve = world.scene.curves[size_t(between(random, 0, kind.curves + 2))];
        curve.samples = &world.lists.back();
        curve.shown = between(random, 0, 7) > 0;
        curve.color = QColor::fromHsv(between(random, 0, kind.colors - 1) * 20, 255, 200);
        curve.shift = between(random, -kind.shift, kind.shift);
        curve.channelOffset = between(random, 0, 2) ? 0.0 : real(random, -20.0, 20.0);
    }
    world.scene.offset = between(random, 0, 2) ? 0.0 : real(random, -20.0, 20.0);
    world.scene.highlighted = between(random, -1, kind.curves);
}

QImage plainPicture(const OsziScene &scene)
{
    QImage image(scene.geometry.widgetWidth, scene.geometry.height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    oszipainter::paintCurves(painter, scene);
    return image;
}

/// "" when equal, else where the first difference is.
QByteArray difference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size())
        return "size";
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (actual.pixel(x, y) != expected.pixel(x, y))
                return "column " + QByteArray::number(x) + " row " + QByteArray::number(y);
        }
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(Kind)

class TestCurveLayer : public QObject
{
    Q_OBJECT

private slots:
    void pictureMatchesThePlainOne_data()
    {
        columns<Kind, int>("kind", "scenes");

        const auto row = [](const char *name, int scenes, const std::function<void(Kind &)> &change) {
            Kind kind;
            change(kind);
            ::row(name, kind, scenes);
        };
        row("one colour", 25, [](Kind &) {});
        row("many curves", 6, [](Kind &k) { k.curves = 300; });
        row("many colours", 20, [](Kind &k) { k.colors = 12, k.curves = 60; });
        row("rough", 20, [](Kind &k) { k.noise = 120.0; });
        row("jumps", 20, [](Kind &k) { k.jumps = 0.1; });
        row("partly outside", 20, [](Kind &k) { k.reach = 160.0, k.jumps = 0.05; });
        row("far outside", 20, [](Kind &k) { k.reach = 1e6, k.jumps = 0.3; });
        row("beyond all pixels", 15, [](Kind &k) { k.reach = 1e300, k.jumps = 0.3; });
        row("shifted, zoom", 20, [](Kind &k) { k.shift = 90, k.largestZoom = 12; });
        row("large zoom", 20, [](Kind &k) { k.largestZoom = 400, k.jumps = 0.05; });
        row("zoom, many colours, far outside", 20,
            [](Kind &k) { k.largestZoom = 5, k.colors = 7, k.reach = 1e5, k.jumps = 0.1; });
        row("tall row", 12, [](Kind &k) { k.height = 600, k.jumps = 0.05; });
    }

    void pictureMatchesThePlainOne()
    {
        QFETCH(Kind, kind);
        QFETCH(int, scenes);
        CurveLayer layer;
        for (int seed = 0; seed < scenes; ++seed) {
            Random random{unsigned(seed)};
            World world;
            fillWorld(random, kind, world);
            layer.invalidate();
            QVERIFY(layer.update(world.scene));
            const QByteArray where = difference(layer.picture(), plainPicture(world.scene));
            QVERIFY2(where.isEmpty(), "scene " + QByteArray::number(seed) + ": " + where);
        }
    }

    void keptPictureFollowsTheScene_data()
    {
        columns<Kind>("kind");

        const auto row = [](const char *name, const std::function<void(Kind &)> &change) {
            Kind kind;
            change(kind);
            ::row(name, kind);
        };
        row("one colour", [](Kind &) {});
        row("many colours", [](Kind &k) { k.colors = 12; });
        row("jumps far outside", [](Kind &k) { k.reach = 1e4, k.jumps = 0.2; });
        row("zoom", [](Kind &k) { k.largestZoom = 9, k.jumps = 0.1; });
        row("large zoom", [](Kind &k) { k.largestZoom = 300, k.samples = 20; });
        row("tall row", [](Kind &k) { k.height = 500, k.curves = 8; });
    }

    /// Scrolls, lets curves grow, changes the offset and the highlighted curve: the picture is updated, never
    /// redrawn on request, and always equals one that is drawn from scratch.
    void keptPictureFollowsTheScene()
    {
        QFETCH(Kind, kind);
        Random random{99};
        for (int sequence = 0; sequence < 5; ++sequence) {
            World world;
            fillWorld(random, kind, world);
            OsziScene &scene = world.scene;
            CurveLayer layer;
            QVERIFY(layer.update(scene));
            for (int step = 0; step < 12; ++step) {
                for (int grown = between(random, 0, 2); grown > 0; --grown) {
                    OsziCurve &curve = scene.curves[size_t(between(random, 0, int(scene.curves.size()) - 1))];
                    if (!curve.samples)
                        continue;
                    const int oldCount = curve.samples->size();
                    for (int n = between(random, 1, 20); n > 0; --n)
                        const_cast<SampleList *>(curve.samples)->append(real(random, -0.2, 1.2) * kind.reach);
                    if (curve.shown && &curve != scene.highlightedCurve())
                        layer.extend(curve, oldCount);
                }
                if (between(random, 0, 3))
                    scene.geometry.startIndex += between(random, -30, 30);
                if (between(random, 0, 7) == 0)
                    scene.offset += 1.5;
                if (between(random, 0, 7) == 0)
                    scene.highlighted = between(random, -1, kind.curves);
                QVERIFY(layer.update(scene));
                const QByteArray where = difference(layer.picture(), plainPicture(scene));
                QVERIFY2(where.isEmpty(), QByteArray::number(sequence) + '/' + QByteArray::number(step) + ": " + where);
            }
        }
    }

    void leavesBlendingToThePainter()
    {
        Random random{3};
        World world;
        fillWorld(random, Kind(), world);
        CurveLayer layer;
        QVERIFY(layer.update(world.scene));
        OsziCurve &curve = world.scene.curves[5];
        curve = {&world.lists.front(), QColor(0, 0, 255, 128), true, 0.0};
        layer.invalidate();
        QVERIFY(!layer.update(world.scene));
        curve.shown = false;
        layer.invalidate();
        QVERIFY(layer.update(world.scene));
    }
};

QTEST_MAIN(TestCurveLayer)

#include "tst_curvelayer.moc"
