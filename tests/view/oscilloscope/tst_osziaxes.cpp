#include "plots/oscilloscope/plotgeometry.h"
#include "tests/support/rows.h"
#include "view/oscilloscope/timeaxis.h"
#include "view/oscilloscope/valueaxis.h"

#include <limits>

namespace {

constexpr int kLargest = std::numeric_limits<int>::max();

bool isNear(ValueSpan a, ValueSpan b)
{
    return qAbs(a.minimum - b.minimum) < 1e-9 && qAbs(a.maximum - b.maximum) < 1e-9;
}

} // namespace

Q_DECLARE_METATYPE(ValueSpan)

class TestOsziAxes : public QObject
{
    Q_OBJECT

private slots:
    void scrolling_data()
    {
        columns<int, int, int, bool, int, bool>("samples", "visible", "start", "enabled", "maximum", "follows");
        row("fewer than fit", 99, 100, 0, false, 0, true);
        row("as many as fit", 100, 100, 0, true, 0, true);
        row("9 before the end", 1000, 100, 891, true, 900, true);
        row("10 before the end", 1000, 100, 890, true, 900, false);
    }

    void scrolling()
    {
        QFETCH(int, samples);
        QFETCH(int, visible);
        QFETCH(int, start);
        const timeaxis::ScrollState state = timeaxis::scrollState(samples, visible);
        QTEST(state.enabled, "enabled");
        QTEST(state.maximum, "maximum");
        QCOMPARE(state.pageStep, state.enabled ? visible / 2 : 0);
        QTEST(timeaxis::followsEnd(start, samples, visible), "follows");
    }

    void zooming_data()
    {
        columns<int, int, int>("zoom", "steps", "expected");
        row("the smallest grows by a pixel", 1, 1, 2);
        row("by a quarter", 20, 1, 25);
        row("two steps", 20, 2, 31);
        row("out", 20, -1, 16);
        row("not below a pixel per sample", 2, -5, 1);
        row("not beyond the largest", 95, 3, 100);
    }

    void zooming()
    {
        QFETCH(int, zoom);
        QFETCH(int, steps);
        QTEST(timeaxis::steppedZoom(zoom, steps), "expected");
    }

    void zoomKeepsTheSampleUnderThePointer_data()
    {
        columns<int, int, int, int, int>("x", "start", "from", "to", "expected");
        row("at the left edge", 70, 500, 1, 10, 500);
        row("in the plot", 170, 500, 1, 10, 590);
        row("out", 170, 590, 10, 1, 500);
        row("not before the beginning", 170, 0, 10, 1, 0);
        row("left of the plot", 10, 500, 1, 10, 446);
        row("the largest start", 1070, kLargest, 1, 2, kLargest);
    }

    void zoomKeepsTheSampleUnderThePointer()
    {
        QFETCH(int, x);
        QFETCH(int, start);
        QFETCH(int, from);
        QFETCH(int, to);
        QTEST(timeaxis::startAfterZoom(x, start, from, to), "expected");
    }

    void timesStayWithinInt()
    {
        QCOMPARE(timeaxis::toMilliseconds(25, 100), 2500);
        QCOMPARE(timeaxis::toMilliseconds(kLargest, 3600000), kLargest);
        QCOMPARE(timeaxis::toMilliseconds(-kLargest, 3600000), std::numeric_limits<int>::min());
    }

    void valuesOnLines_data()
    {
        columns<int, int, double>("height", "y", "value");
        row("bottom", 230, 215, 0.0);
        row("top", 230, 15, 100.0);
        row("between", 230, 115, 50.0);
        row("above the plot area", 230, 5, 105.0);
        row("collapsed row", 20, 15, 100.0); // as if one pixel high
    }

    void valuesOnLines()
    {
        QFETCH(int, height);
        QFETCH(int, y);
        PlotGeometry geometry;
        geometry.height = height;
        geometry.margin = 15;
        geometry.maxValue = 100.0;
        QTEST(valueaxis::valueAt(geometry, y), "value");
        if (geometry.plotHeight() > 0)
            QCOMPARE(geometry.yOfValue(valueaxis::valueAt(geometry, y)), y);
    }

    void fitting_data()
    {
        columns<double, double, ValueSpan>("lowest", "highest", "expected");
        row("a twentieth of air", 0.0, 100.0, ValueSpan{-5.0, 105.0});
        row("rounded outwards", 11.0, 110.0, ValueSpan{6.0, 115.0});
        row("small values", 0.25, 0.75, ValueSpan{0.225, 0.775});
        row("a constant", 40.0, 40.0, ValueSpan{38.0, 42.0});
        row("a constant zero", 0.0, 0.0, ValueSpan{-1.0, 1.0});
    }

    void fitting()
    {
        QFETCH(double, lowest);
        QFETCH(double, highest);
        QFETCH(ValueSpan, expected);
        const ValueSpan fitted = valueaxis::fittedSpan(lowest, highest);
        QVERIFY2(isNear(fitted, expected), qPrintable(QString::number(fitted.minimum, 'g', 17)));
        QVERIFY(valueaxis::isShowable(fitted));
    }

    void moving_data()
    {
        columns<ValueSpan, double, ValueSpan, ValueSpan>("span", "distance", "limits", "expected");
        const ValueSpan wide{-1e9, 1e9};
        row("by whole steps", ValueSpan{0.0, 100.0}, 3.4, wide, ValueSpan{3.0, 103.0});
        row("less than a step", ValueSpan{0.0, 100.0}, 0.4, wide, ValueSpan{0.0, 100.0});
        row("held below", ValueSpan{0.0, 100.0}, -30.0, ValueSpan{-10.0, 500.0}, ValueSpan{-10.0, 90.0});
        row("held above", ValueSpan{0.0, 100.0}, 30.0, ValueSpan{-10.0, 110.0}, ValueSpan{10.0, 110.0});
        row("wider than the limits", ValueSpan{0.0, 100.0}, 30.0, ValueSpan{20.0, 70.0}, ValueSpan{20.0, 70.0});
    }

    void moving()
    {
        QFETCH(ValueSpan, span);
        QFETCH(double, distance);
        QFETCH(ValueSpan, limits);
        QFETCH(ValueSpan, expected);
        QVERIFY(isNear(valueaxis::boundedSpan(valueaxis::movedSpan(span, distance), limits), expected));
    }

    void zoomingValues()
    {
        const ValueSpan nearer = valueaxis::zoomedSpan({0.0, 100.0}, 25.0, 1);
        QVERIFY(isNear(nearer, {5.0, 85.0}));
        QVERIFY(isNear(valueaxis::zoomedSpan(nearer, 25.0, -1), {0.0, 100.0}));
        const ValueSpan narrow{0.0, 0.0011};
        QVERIFY(isNear(valueaxis::zoomedSpan(narrow, 0.0005, 1), narrow));
    }
};

QTEST_APPLESS_MAIN(TestOsziAxes)
#include "tst_osziaxes.moc"
