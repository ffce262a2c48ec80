#include "plots/oscilloscope/plotgeometry.h"
#include "plots/oscilloscope/plotgrid.h"
#include "tests/support/rows.h"

#include <limits>

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kFar = PlotGeometry::kFarAway;

/// A row of 200 plot pixels with margins of 20 and 1130 columns of plot area.
PlotGeometry plotRow(double minValue, double maxValue)
{
    PlotGeometry geometry;
    geometry.width = 1200;
    geometry.widgetWidth = 1202;
    geometry.height = 240;
    geometry.margin = 20;
    geometry.minValue = minValue;
    geometry.maxValue = maxValue;
    return geometry;
}

PlotGeometry timeAxis(int startIndex, int zoom, int clock)
{
    PlotGeometry geometry = plotRow(0.0, 255.0);
    geometry.startIndex = startIndex;
    geometry.zoom = zoom;
    geometry.clock = clock;
    return geometry;
}

} // namespace

class TestPlotMath : public QObject
{
    Q_OBJECT

private slots:
    void valuesToRows_data()
    {
        columns<double, double, double, int>("minValue", "maxValue", "value", "y");

        row("top", 0.0, 100.0, 100.0, 20);
        row("half a pixel goes away from zero", 0.0, 100.0, 0.25, 220);
        row("just over half a pixel", 0.0, 100.0, 0.2500001, 219);
        row("half a pixel above the widget", 0.0, 100.0, 110.25, -1);
        row("a range around zero", -50.0, 50.0, 0.0, 120);
        row("infinite distance", -1.0, 1.0, -std::numeric_limits<double>::max(), kFar);
        row("overflowing range", -1e308, 1e308, 5.0, kFar);
    }

    void valuesToRows()
    {
        QFETCH(double, minValue);
        QFETCH(double, maxValue);
        QFETCH(double, value);
        QTEST(plotRow(minValue, maxValue).yOfValue(value), "y");
    }

    void timesToColumns_data()
    {
        columns<int, int, int, qint64, int>("start", "zoom", "clock", "time", "x");

        row("truncated", 0, 1, 100, qint64(199), 71);
        row("zoom before division", 0, 3, 100, qint64(50), 71);
        row("unset marker truncates to the edge", 0, 1, 100, qint64(-1), 70);
        row("ten days at 1 ms, zoom 50", 864000000, 50, 1, qint64(864000010), 570);
        row("product beyond 64 bits", kIntMax, kIntMax, kIntMax, qint64(kIntMax) * kIntMax, 70);
        row("far right", kIntMin, kIntMax, 1, qint64(kIntMax), kFar);
    }

    void timesToColumns()
    {
        QFETCH(int, start);
        QFETCH(int, zoom);
        QFETCH(int, clock);
        QFETCH(qint64, time);
        QTEST(timeAxis(start, zoom, clock).xOfTime(time), "x");
    }

    void columnsToSamples_data()
    {
        columns<int, int, int, qint64>("start", "zoom", "x", "sample");

        row("cut off, not rounded", 0, 10, 176, qint64(10));
        row("scrolled", 100, 10, 170, qint64(110));
        row("just left of the plot area", 5, 10, 61, qint64(5));
        row("farther left", 5, 10, 60, qint64(4));
        row("beyond int", kIntMax, 1, 71, qint64(kIntMax) + 1);
    }

    void columnsToSamples()
    {
        QFETCH(int, start);
        QFETCH(int, zoom);
        QFETCH(int, x);
        QTEST(timeAxis(start, zoom, 1).sampleAt(x), "sample");
    }

    void visibleSamples_data()
    {
        columns<int, int, int>("width", "zoom", "samples");

        row("the last one does not fit", 99, 10, 2);
        row("narrower than the labels", 40, 10, 0);
    }

    void visibleSamples()
    {
        QFETCH(int, width);
        QFETCH(int, zoom);
        PlotGeometry geometry = timeAxis(0, zoom, 1);
        geometry.width = width;
        QTEST(geometry.visibleSamples(), "samples");
    }

    void visibleSpans_data()
    {
        columns<int, int, int, qint64, qint64>("start", "zoom", "count", "first", "last");

        row("empty list", 0, 1, 0, qint64(0), qint64(-1));
        row("one sample", 0, 1, 1, qint64(0), qint64(-1));
        row("two samples, scrolled by one", 1, 1, 2, qint64(0), qint64(-1));
        row("as wide as the view", 0, 1, 5000, qint64(0), qint64(1130));
        row("scrolled, zoomed", 30, 7, 5000, qint64(30), qint64(191));
        row("one sample before its list begins", -100, 1, 1, qint64(0), qint64(0));
        row("view before the list begins", -100, 1, 5000, qint64(0), qint64(1030));
        row("view ends before the list begins", -2000, 1, 5000, qint64(0), qint64(-870));
        row("zoom wider than the view", 0, 2000, 50, qint64(0), qint64(0));
        row("latest start", kIntMax, 1, kIntMax, qint64(0), qint64(-1));
    }

    void visibleSpans()
    {
        QFETCH(int, start);
        QFETCH(int, zoom);
        QFETCH(int, count);
        QFETCH(qint64, first);
        QFETCH(qint64, last);
        const SampleSpan span = visibleSpan(timeAxis(start, zoom, 1), count);
        QCOMPARE(span.isEmpty(), last <= first);
        QCOMPARE(span.first, first);
        QCOMPARE(span.last, last);
    }

    void autoValueGrids_data()
    {
        columns<double, int, double>("span", "height", "grid");

        row("1000 in 400 px", 1000.0, 400, 100.0);
        row("wider than the ladder", 1e6, 200, 160000.0);
        row("end of the ladder", 0.001, 200, 0.0005);
        row("collapsed row", 255.0, 0, 10000.0);
        row("margins higher than the row", 255.0, -12, 10000.0);
        row("infinite range", std::numeric_limits<double>::infinity(), 200, 10000.0);
    }

    void autoValueGrids()
    {
        QFETCH(double, span);
        QFETCH(int, height);
        QTEST(autoValueGrid(span, height), "grid");
    }

    void autoClockGrids_data()
    {
        columns<int, int, int, int>("zoom", "clock", "from", "grid");

        row("just fits below", 1, 1, 50, 50);
        row("doubled", 1, 100, 100, 6400);
        row("halved until odd, then by 5", 10, 1, 100, 5);
        row("odd and no multiple of 5", 200, 1, 7, 7);
        row("by 5 and doubled again", 5, 1, 25, 10);
        row("slowest clock does not overflow", 1, kIntMax, kIntMax, kIntMax);
        row("quickest zoom", kIntMax, 1, kIntMax, kIntMax);
    }

    void autoClockGrids()
    {
        QFETCH(int, zoom);
        QFETCH(int, clock);
        QFETCH(int, from);
        QTEST(autoClockGrid(zoom, clock, from), "grid");
    }

    void valueLines_data()
    {
        columns<double, double, double, qint64, qint64, qint64>("minValue", "maxValue", "grid", "first", "last",
                                                                "stride");

        row("both sides of zero", -100.0, 100.0, 30.0, qint64(-3), qint64(3), qint64(1));
        row("maximum reached by rounding", 0.0, 0.3, 0.1, qint64(0), qint64(3), qint64(1));
        row("lines below the minimum as far as they show", 1000.0, 2000.0, 100.0, qint64(8), qint64(20), qint64(1));
        row("finer than a pixel", 0.0, 1e9, 1.0, qint64(0), qint64(1000000000), qint64(5000000));
        row("no step", 0.0, 1.0, 0.0, qint64(0), qint64(-1), qint64(1));
        row("not a number", 0.0, 1.0, std::numeric_limits<double>::quiet_NaN(), qint64(0), qint64(-1), qint64(1));
        row("step vanishes in the range", 1e300, 2e300, 1e-3, qint64(0), qint64(-1), qint64(1));
    }

    void valueLines()
    {
        QFETCH(double, minValue);
        QFETCH(double, maxValue);
        QFETCH(double, grid);
        const GridLines lines = valueGridLines(plotRow(minValue, maxValue), grid);
        QTEST(lines.first, "first");
        QTEST(lines.last, "last");
        QTEST(lines.stride, "stride");
    }

    void clockLines_data()
    {
        columns<int, int, int, int, qint64, qint64, qint64>("start", "zoom", "clock", "grid", "first", "last",
                                                            "stride");

        // Lines whose label could still show end 1135 pixels right of the left edge.
        row("the last pixel counts", 0, 1, 1, 1134, qint64(1), qint64(1), qint64(1));
        row("one more does not", 0, 1, 1, 1135, qint64(1), qint64(0), qint64(1));
        row("scrolled onto a line", 200, 1, 1, 100, qint64(3), qint64(13), qint64(1));
        row("ten days at 1 ms", 864000000, 1, 1, 100, qint64(8640001), qint64(8640011), qint64(1));
        row("finer than a pixel", 0, 1, 1000000000, 1, qint64(1), qint64(1134999999999), qint64(1000000000));
        row("ends of the number range", kIntMax, kIntMax, kIntMax, kIntMax, qint64(kIntMax) + 1, qint64(kIntMax),
            qint64(1));
        row("no step", 0, 1, 1, 0, qint64(0), qint64(-1), qint64(1));
    }

    void clockLines()
    {
        QFETCH(int, start);
        QFETCH(int, zoom);
        QFETCH(int, clock);
        QFETCH(int, grid);
        const GridLines lines = clockGridLines(timeAxis(start, zoom, clock), grid);
        QTEST(lines.first, "first");
        QTEST(lines.last, "last");
        QTEST(lines.stride, "stride");
    }

    void decimals_data()
    {
        columns<double, int>("span", "digits");

        row("1", 1.0, 3);
        row("over 1", 1.01, 2);
        row("100", 100.0, 1);
        row("over 100", 100.5, 0);
    }

    void decimals()
    {
        QFETCH(double, span);
        QTEST(labelDecimals(span), "digits");
    }

    void timeLabels_data()
    {
        columns<qint64, QString>("time", "label");

        row("0", qint64(0), "0ms");
        row("1000", qint64(1000), "1000ms");
        row("1001", qint64(1001), "1.001s");
        row("1500", qint64(1500), "1.5s");
        row("1000000", qint64(1000000), "1000s");
        row("1000001", qint64(1000001), "1.000001Ts");
        row("negative", qint64(-1500), "-1500ms");
    }

    void timeLabels()
    {
        QFETCH(qint64, time);
        QTEST(timeLabel(time), "label");
    }
};

QTEST_APPLESS_MAIN(TestPlotMath)

#include "tst_plotmath.moc"
