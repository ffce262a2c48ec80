#include "plots/charts/capability.h"
#include "plots/evaluation/common/quantitycache.h"
#include "plots/evaluation/common/trendgeometry.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <cmath>
#include <limits>

namespace {

constexpr MarkerIndices kMarkers{2, 4, 4, 7};
// Phases: 3 9 | 1 5 | – | 5 2 4 | -6 0
const QVector<double> kSamples{3.0, 9.0, 1.0, 5.0, 5.0, 2.0, 4.0, -6.0, 0.0};

ShotFigures figuresOf(const QVector<double> &samples, const MarkerIndices &markers)
{
    ShotFigures figures;
    figures.extend(samples, markers);
    return figures;
}

QuantityCache::Shots shotsOf(const std::vector<quint64> &ids, const std::vector<QVector<double>> &lists)
{
    QuantityCache::Shots shots;
    for (size_t i = 0; i < ids.size(); ++i)
        shots.push_back({ids[i], &lists[i]});
    return shots;
}

} // namespace

Q_DECLARE_METATYPE(ToleranceLimits)
Q_DECLARE_METATYPE(CapabilityGrade)

class TestShotQuantity : public QObject
{
    Q_OBJECT

private slots:
    // Expected values worked out by hand from the list above, with an offset of 0.5 and 200 ms per sample.
    void valuesOfAShot_data()
    {
        // expected: not a number means that there is no value
        columns<QString, double>("key", "expected");
        const double none = std::nan("");
        const auto row = [](const char *key, double expected) { ::row(key, QString::fromLatin1(key), expected); };
        row("marker2", 5.5);
        row("marker4", -5.5);
        row("minimum", -5.5);
        row("maximum", 9.5);
        row("mean", 23.0 / 9.0 + 0.5);
        row("integral", (23.0 + 4.5) * 0.2);
        row("peakTime", 0.2);
        row("maximum.phase2", 5.5);
        row("peakTime.phase2", 0.6);
        row("mean.phase3", none); // two markers at the same sample
        row("integral.phase4", (11.0 + 1.5) * 0.2);
        row("peakTime.phase5", 1.6);
    }

    void valuesOfAShot()
    {
        QFETCH(QString, key);
        QFETCH(double, expected);
        const std::optional<Quantity> quantity = Quantity::fromKey(key);
        QVERIFY(quantity);
        const std::optional<double> value = valueOf(*quantity, figuresOf(kSamples, kMarkers), {0.5, 200});
        QCOMPARE(value.has_value(), !std::isnan(expected));
        if (value)
            QCOMPARE(*value, expected);
        // A shot without samples has no figures; one that ends before its markers has none after them.
        QVERIFY(!valueOf(*quantity, ShotFigures(), {}));
        QCOMPARE(valueOf(*quantity, figuresOf({1.0}, {1, 2, 3, 4}), {}).has_value(),
                 !key.startsWith("marker"_s) && (!key.contains("phase"_s) || key.endsWith(QLatin1Char('1'))));
    }

    void aGrowingShotEndsUpTheSame()
    {
        const ShotFigures atOnce = figuresOf(kSamples, kMarkers);
        for (int first = 0; first <= kSamples.size(); ++first) {
            for (int second = first; second <= kSamples.size(); ++second) {
                ShotFigures figures;
                figures.extend(kSamples.mid(0, first), kMarkers);
                figures.extend(kSamples.mid(0, second), kMarkers);
                figures.extend(kSamples, kMarkers);
                for (const Quantity &quantity : Quantity::all())
                    QVERIFY2(valueOf(quantity, figures, {}) == valueOf(quantity, atOnce, {}),
                             qPrintable(quantity.key()));
            }
        }
    }

    void keysNameEveryQuantity()
    {
        QCOMPARE(Quantity::all().size(), 4 + 5 * 6);
        for (const Quantity &quantity : Quantity::all())
            QVERIFY(Quantity::fromKey(quantity.key()) == quantity);
        for (const char *text : {"", "marker", "marker5", "mean.phase6", "mean.phase0", "Mean", "mean "})
            QVERIFY2(!Quantity::fromKey(QString::fromLatin1(text)), text);
    }

    void theCacheLooksAtWhatChanged()
    {
        std::vector<QVector<double>> lists{{1.0}, {2.0}, {3.0, 4.0}};
        QuantityCache cache;
        const auto maxima = [&] {
            QStringList texts;
            for (const ShotFigures &figures : cache.figures()) {
                const std::optional<double> value = valueOf({Quantity::Kind::Maximum, 0}, figures, {});
                texts << (value ? QString::number(*value) : "-"_s);
            }
            return texts.join(QLatin1Char(' '));
        };
        QCOMPARE(cache.refresh(shotsOf({1, 2, 3}, lists), kMarkers).scanned, 3);
        QCOMPARE(maxima(), "1 2 4"_s);
        lists[2].append(8.0);
        QuantityCache::Work work = cache.refresh(shotsOf({1, 2, 3}, lists), kMarkers);
        QCOMPARE(work.scanned, 0);
        QCOMPARE(work.extended, 1);
        QCOMPARE(maxima(), "1 2 8"_s);
        // The second was removed, an empty one appended: at an address where another one was before.
        lists = {{1.0}, {3.0, 4.0, 8.0}, {}};
        work = cache.refresh(shotsOf({1, 3, 4}, lists), kMarkers);
        QCOMPARE(work.scanned, 1);
        QCOMPARE(maxima(), "1 8 -"_s);
        QCOMPARE(cache.refresh(shotsOf({1, 3, 4}, lists), {0, 0, 0, 0}).scanned, 3);
        QCOMPARE(cache.refresh({}, {0, 0, 0, 0}).scanned, 0);
        QVERIFY(cache.figures().empty());
    }

    void limitsJudge_data()
    {
        const auto none = std::optional<double>();
        const double infinity = std::numeric_limits<double>::infinity();
        const double no = std::nan("");
        columns<QVector<double>, ToleranceLimits, double, double, int, CapabilityGrade>("values", "limits", "cp", "cpk",
                                                                                        "outside", "grade");
        const QVector<double> spread{8.0, 12.0}; // mean 10, sigma 2
        row("no limits", spread, ToleranceLimits{none, none}, no, no, 0, CapabilityGrade::Unknown);
        row("centred", spread, ToleranceLimits{2.02, 17.98}, 1.33, 1.33, 0, CapabilityGrade::Good);
        row("off centre", spread, ToleranceLimits{4.0, 22.0}, 1.5, 1.0, 0, CapabilityGrade::Fair);
        row("just below", spread, ToleranceLimits{4.01, none}, no, 5.99 / 6, 0, CapabilityGrade::Poor);
        row("on the limits", spread, ToleranceLimits{8.0, 12.0}, 1.0 / 3, 1.0 / 3, 0, CapabilityGrade::Poor);
        row("inverted", spread, ToleranceLimits{12.0, 8.0}, no, no, 2, CapabilityGrade::Unknown);
        row("one value", QVector<double>{5.0}, ToleranceLimits{0.0, 4.0}, no, no, 1, CapabilityGrade::Unknown);
        const QVector<double> equal(3, 0.1); // whose sum divided by 3 is not 0.1
        row("equal, good", equal, ToleranceLimits{0.0, 1.0}, infinity, infinity, 0, CapabilityGrade::Good);
        row("equal, on it", equal, ToleranceLimits{0.1, 1.0}, infinity, 0.0, 0, CapabilityGrade::Poor);
    }

    void limitsJudge()
    {
        QFETCH(QVector<double>, values);
        QFETCH(ToleranceLimits, limits);
        const Capability result = capability(values, limits);
        const auto check = [](const std::optional<double> &found, double expected) {
            return found ? *found == expected || qFuzzyCompare(*found, expected) : std::isnan(expected);
        };
        QFETCH(double, cp);
        QFETCH(double, cpk);
        QVERIFY2(check(result.cp, cp), qPrintable(QString::number(result.cp.value_or(-99.0), 'g', 17)));
        QVERIFY2(check(result.cpk, cpk), qPrintable(QString::number(result.cpk.value_or(-99.0), 'g', 17)));
        QTEST(countOutside(values, limits), "outside");
        QTEST(gradeOf(result), "grade");
    }

    void ticksLieInTheRange_data()
    {
        columns<double, double, int, QString>("minimum", "maximum", "most", "texts");
        row("plain", 0.0, 10.0, 5, "0 2 4 6 8 10");
        row("negative", -0.03, 0.07, 4, "0.00 0.05");
        row("collapsed", 5.0, 5.0, 4, QString());
        row("endless", -1e308, 1.7e308, 4, QString());
        row("far", 1e15, 1e15 + 1.0, 2, "1e+15 1e+15 1e+15");
    }

    void ticksLieInTheRange()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(int, most);
        const TrendTicks ticks = trendTicks({minimum, maximum}, most);
        QStringList texts;
        for (const double value : ticks.values) {
            QVERIFY(value >= minimum && value <= maximum);
            texts << tickText(value, ticks.step);
        }
        QTEST(texts.join(QLatin1Char(' ')), "texts");
    }

    void chartsMapThereAndBack()
    {
        const TrendRange range = trendRange({std::nullopt, 5.0}, {std::nullopt, 11.0});
        QVERIFY(range.minimum < 5.0 && range.maximum > 11.0 && range.maximum < 12.0);
        QVERIFY(trendRange({7.0, 7.0}, {}).maximum > 7.0);
        QVERIFY(std::isfinite(trendRange({-1.7e308, 1.7e308}, {}).maximum));
        for (const int count : {0, 1, 2, 60, 10000}) {
            const TrendGeometry geometry{QRectF(76, 24, 500, 100), count, {0.0, 1.0}};
            QCOMPARE(geometry.shotAt(-1e6), count == 0 ? -1 : 0);
            QCOMPARE(geometry.shotAt(1e6), count - 1);
            for (int shot = 0; shot < count; shot += 7)
                QCOMPARE(geometry.shotAt(geometry.x(shot)), shot);
        }
        // No more columns than pixels, and the extremes are kept.
        TrendValues values(10000, 1.0);
        values[4711] = -3.0;
        values[4712] = std::nullopt;
        const std::vector<TrendColumn> columns = trendColumns(values, {QRectF(0, 0, 500, 100), 10000, {0.0, 1.0}});
        QVERIFY(columns.size() <= 501);
        QCOMPARE(std::count_if(columns.begin(), columns.end(), [](const auto &c) { return c.minimum == -3.0; }), 1);
    }
};

QTEST_GUILESS_MAIN(TestShotQuantity)
#include "tst_shotquantity.moc"
