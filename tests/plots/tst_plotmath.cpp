#include "plots/plotgeometry.h"
#include "plots/plotgrid.h"

#include <QTest>

#include <limits>

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kFar = PlotGeometry::kFarAway;

/// A row of 200 plot pixels with margins of 20 and 1130 columns of plot area.
PlotGeometry row(double minValue, double maxValue)
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
    PlotGeometry geometry = row(0.0, 255.0);
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
    void valuesToRows_data();
    void valuesToRows();
    void timesToColumns_data();
    void timesToColumns();
    void visibleSpans_data();
    void visibleSpans();
    void autoValueGrids_data();
    void autoValueGrids();
    void autoClockGrids_data();
    void autoClockGrids();
    void valueLines_data();
    void valueLines();
    void clockLines_data();
    void clockLines();
    void decimals_data();
    void decimals();
    void timeLabels_data();
    void timeLabels();
};

void TestPlotMath::valuesToRows_data()
{
    QTest::addColumn<double>("minValue");
    QTest::addColumn<double>("maxValue");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("y");

    QTest::newRow("top") << 0.0 << 100.0 << 100.0 << 20;
    QTest::newRow("half a pixel goes away from zero") << 0.0 << 100.0 << 0.25 << 220;
    QTest::newRow("just over half a pixel") << 0.0 << 100.0 << 0.2500001 << 219;
    QTest::newRow("half a pixel above the widget") << 0.0 << 100.0 << 110.25 << -1;
    QTest::newRow("a range around zero") << -50.0 << 50.0 << 0.0 << 120;
    QTest::newRow("infinite distance") << -1.0 << 1.0 << -std::numeric_limits<double>::max() << kFar;
    QTest::newRow("overflowing range") << -1e308 << 1e308 << 5.0 << kFar;
}

void TestPlotMath::valuesToRows()
{
    QFETCH(double, minValue);
    QFETCH(double, maxValue);
    QFETCH(double, value);
    QTEST(row(minValue, maxValue).yOfValue(value), "y");
}

void TestPlotMath::timesToColumns_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("clock");
    QTest::addColumn<qint64>("time");
    QTest::addColumn<int>("x");

    QTest::newRow("truncated") << 0 << 1 << 100 << qint64(199) << 71;
    QTest::newRow("zoom before division") << 0 << 3 << 100 << qint64(50) << 71;
    QTest::newRow("unset marker truncates to the edge") << 0 << 1 << 100 << qint64(-1) << 70;
    QTest::newRow("ten days at 1 ms, zoom 50") << 864000000 << 50 << 1 << qint64(864000010) << 570;
    QTest::newRow("product beyond 64 bits") << kIntMax << kIntMax << kIntMax << qint64(kIntMax) * kIntMax << 70;
    QTest::newRow("far right") << kIntMin << kIntMax << 1 << qint64(kIntMax) << kFar;
}

void TestPlotMath::timesToColumns()
{
    QFETCH(int, start);
    QFETCH(int, zoom);
    QFETCH(int, clock);
    QFETCH(qint64, time);
    QTEST(timeAxis(start, zoom, clock).xOfTime(time), "x");
}

void TestPlotMath::visibleSpans_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("count");
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("last");

    QTest::newRow("empty list") << 0 << 1 << 0 << qint64(0) << qint64(-1);
    QTest::newRow("one sample") << 0 << 1 << 1 << qint64(0) << qint64(-1);
    QTest::newRow("two samples, scrolled by one") << 1 << 1 << 2 << qint64(0) << qint64(-1);
    QTest::newRow("as wide as the view") << 0 << 1 << 5000 << qint64(0) << qint64(1130);
    QTest::newRow("scrolled, zoomed") << 30 << 7 << 5000 << qint64(30) << qint64(191);
    QTest::newRow("one sample before its list begins") << -100 << 1 << 1 << qint64(0) << qint64(0);
    QTest::newRow("view before the list begins") << -100 << 1 << 5000 << qint64(0) << qint64(1030);
    QTest::newRow("view ends before the list begins") << -2000 << 1 << 5000 << qint64(0) << qint64(-870);
    QTest::newRow("zoom wider than the view") << 0 << 2000 << 50 << qint64(0) << qint64(0);
    QTest::newRow("latest start") << kIntMax << 1 << kIntMax << qint64(0) << qint64(-1);
}

void TestPlotMath::visibleSpans()
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

void TestPlotMath::autoValueGrids_data()
{
    QTest::addColumn<double>("span");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("grid");

    QTest::newRow("1000 in 400 px") << 1000.0 << 400 << 100.0;
    QTest::newRow("wider than the ladder") << 1e6 << 200 << 160000.0;
    QTest::newRow("end of the ladder") << 0.001 << 200 << 0.0005;
    QTest::newRow("collapsed row") << 255.0 << 0 << 10000.0;
    QTest::newRow("margins higher than the row") << 255.0 << -12 << 10000.0;
    QTest::newRow("infinite range") << std::numeric_limits<double>::infinity() << 200 << 10000.0;
}

void TestPlotMath::autoValueGrids()
{
    QFETCH(double, span);
    QFETCH(int, height);
    QTEST(autoValueGrid(span, height), "grid");
}

void TestPlotMath::autoClockGrids_data()
{
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("clock");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("grid");

    QTest::newRow("just fits below") << 1 << 1 << 50 << 50;
    QTest::newRow("doubled") << 1 << 100 << 100 << 6400;
    QTest::newRow("halved until odd, then by 5") << 10 << 1 << 100 << 5;
    QTest::newRow("odd and no multiple of 5") << 200 << 1 << 7 << 7;
    QTest::newRow("by 5 and doubled again") << 5 << 1 << 25 << 10;
    QTest::newRow("slowest clock does not overflow") << 1 << kIntMax << kIntMax << kIntMax;
    QTest::newRow("quickest zoom") << kIntMax << 1 << kIntMax << kIntMax;
}

void TestPlotMath::autoClockGrids()
{
    QFETCH(int, zoom);
    QFETCH(int, clock);
    QFETCH(int, from);
    QTEST(autoClockGrid(zoom, clock, from), "grid");
}

void TestPlotMath::valueLines_data()
{
    QTest::addColumn<double>("minValue");
    QTest::addColumn<double>("maxValue");
    QTest::addColumn<double>("grid");
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("last");
    QTest::addColumn<qint64>("stride");

    QTest::newRow("both sides of zero") << -100.0 << 100.0 << 30.0 << qint64(-3) << qint64(3) << qint64(1);
    QTest::newRow("maximum reached by rounding") << 0.0 << 0.3 << 0.1 << qint64(0) << qint64(3) << qint64(1);
    QTest::newRow("lines below the minimum as far as they show")
        << 1000.0 << 2000.0 << 100.0 << qint64(8) << qint64(20) << qint64(1);
    QTest::newRow("finer than a pixel") << 0.0 << 1e9 << 1.0 << qint64(0) << qint64(1000000000) << qint64(5000000);
    QTest::newRow("no step") << 0.0 << 1.0 << 0.0 << qint64(0) << qint64(-1) << qint64(1);
    QTest::newRow("not a number") << 0.0 << 1.0 << std::numeric_limits<double>::quiet_NaN() << qint64(0) << qint64(-1)
                                  << qint64(1);
    QTest::newRow("step vanishes in the range") << 1e300 << 2e300 << 1e-3 << qint64(0) << qint64(-1) << qint64(1);
}

void TestPlotMath::valueLines()
{
    QFETCH(double, minValue);
    QFETCH(double, maxValue);
    QFETCH(double, grid);
    const GridLines lines = valueGridLines(row(minValue, maxValue), grid);
    QTEST(lines.first, "first");
    QTEST(lines.last, "last");
    QTEST(lines.stride, "stride");
}

void TestPlotMath::clockLines_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("clock");
    QTest::addColumn<int>("grid");
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("last");
    QTest::addColumn<qint64>("stride");

    // Lines whose label could still show end 1135 pixels right of the left edge.
    QTest::newRow("the last pixel counts") << 0 << 1 << 1 << 1134 << qint64(1) << qint64(1) << qint64(1);
    QTest::newRow("one more does not") << 0 << 1 << 1 << 1135 << qint64(1) << qint64(0) << qint64(1);
    QTest::newRow("scrolled onto a line") << 200 << 1 << 1 << 100 << qint64(3) << qint64(13) << qint64(1);
    QTest::newRow("ten days at 1 ms") << 864000000 << 1 << 1 << 100 << qint64(8640001) << qint64(8640011) << qint64(1);
    QTest::newRow("finer than a pixel") << 0 << 1 << 1000000000 << 1 << qint64(1) << qint64(1134999999999)
                                        << qint64(1000000000);
    QTest::newRow("ends of the number range")
        << kIntMax << kIntMax << kIntMax << kIntMax << qint64(kIntMax) + 1 << qint64(kIntMax) << qint64(1);
    QTest::newRow("no step") << 0 << 1 << 1 << 0 << qint64(0) << qint64(-1) << qint64(1);
}

void TestPlotMath::clockLines()
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

void TestPlotMath::decimals_data()
{
    QTest::addColumn<double>("span");
    QTest::addColumn<int>("digits");

    QTest::newRow("1") << 1.0 << 3;
    QTest::newRow("over 1") << 1.01 << 2;
    QTest::newRow("100") << 100.0 << 1;
    QTest::newRow("over 100") << 100.5 << 0;
}

void TestPlotMath::decimals()
{
    QFETCH(double, span);
    QTEST(labelDecimals(span), "digits");
}

void TestPlotMath::timeLabels_data()
{
    QTest::addColumn<qint64>("time");
    QTest::addColumn<QString>("label");

    QTest::newRow("0") << qint64(0) << QStringLiteral("0ms");
    QTest::newRow("1000") << qint64(1000) << QStringLiteral("1000ms");
    QTest::newRow("1001") << qint64(1001) << QStringLiteral("1.001s");
    QTest::newRow("1500") << qint64(1500) << QStringLiteral("1.5s");
    QTest::newRow("1000000") << qint64(1000000) << QStringLiteral("1000s");
    QTest::newRow("1000001") << qint64(1000001) << QStringLiteral("1.000001Ts");
    QTest::newRow("negative") << qint64(-1500) << QStringLiteral("-1500ms");
}

void TestPlotMath::timeLabels()
{
    QFETCH(qint64, time);
    QTEST(timeLabel(time), "label");
}

QTEST_APPLESS_MAIN(TestPlotMath)

#include "tst_plotmath.moc"
