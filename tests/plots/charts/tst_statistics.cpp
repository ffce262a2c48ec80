#include "plots/charts/normaldistribution.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <cmath>
#include <limits>

using statistics::FiveNumbers;
using statistics::Moments;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

void compareClose(double actual, double expected)
{
    const double tolerance = 1e-12 * std::max(1.0, std::abs(expected));
    QVERIFY2(std::abs(actual - expected) <= tolerance,
             qPrintable("%1 instead of %2"_s.arg(actual, 0, 'g', 17).arg(expected, 0, 'g', 17)));
}

} // namespace

class StatisticsTest : public QObject
{
    Q_OBJECT

private slots:
    void breaks_data()
    {
        using Row = QVector<double>;
        columns<Row, Row>("times", "usual");
        row("none", Row{}, Row{});
        row("one", Row{3600}, Row{3600});
        row("a lunch break", Row{30, 31, 1800, 29}, Row{30, 31, 29});
        row("five times is no break", Row{10, 10, 50, 10, 50.1}, Row{10, 10, 50, 10});
        row("a clock set back by a day", Row{30, -86394, 30}, Row{30, 30});
        row("shorter than the resolution", Row{0, 0, 0, 1}, Row{0, 0, 0, 1});
        row("only backwards", Row{-1}, Row{});
    }

    void breaks()
    {
        QFETCH(QVector<double>, times);
        const statistics::UsualTimes result = statistics::withoutBreaks(times);
        QTEST(result.values, "usual");
        QCOMPARE(result.leftOut, times.size() - result.values.size());
    }

    // Means and sigmas were computed with exact fractions, medians by another program.
    void figures_data()
    {
        columns<QList<double>, QVector<double>, QVector<double>>("values", "moments", "five");
        using List = QList<double>;
        using Row = QVector<double>;

        row("none", List{}, Row{0, 0}, Row{0, 0, 0, 0, 0});
        row("one", List{5.5}, Row{5.5, 0}, Row{5.5, 5.5, 5.5, 5.5, 5.5});
        row("eight", List{1, 2, 3, 4, 5, 6, 7, 8}, Row{4.5, 2.29128784747792}, Row{1, 3, 4.5, 7, 8});
        row("ties", List{2, 2, 2, 2, 9}, Row{3.4, 2.8}, Row{2, 2, 2, 2, 9});
        row("equal, with a sum that is rounded", List{0.1, 0.1, 0.1, 0.1, 0.1, 0.1}, Row{0.1, 0},
            Row{0.1, 0.1, 0.1, 0.1, 0.1});
        row("both signs", List{-3.2, 7.25, 0.1, -11, 4.4, 4.4}, Row{0.325, 6.081375255647361},
            Row{-11, -3.2, 2.25, 4.4, 7.25});
        // A one-pass sum of squares loses all digits here.
        row("small spread far from 0", List{1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16}, Row{1000000010, 4.743416490252569},
            Row{1e9 + 4, 1e9 + 7, 1e9 + 10, 1e9 + 16, 1e9 + 16});
        row("fifteen",
            List{12.1, 12.71, 12.12, 12.05, 11.56, 12.13, 13.19, 12.64, 13.13, 12.5, 12.62, 12.45, 10.97, 12.98, 12.71},
            Row{12.390666666666666, 0.5725436421987604}, Row{10.97, 12.1, 12.5, 12.71, 13.19});
        row("not finite", List{kNan, 3, kInf, 1, -kInf, 2, kNan}, Row{2, 0.816496580927726}, Row{1, 1, 2, 3, 3});
    }

    void figures()
    {
        QFETCH(QList<double>, values);
        QFETCH(QVector<double>, moments);

        NormalDistribution distribution;
        distribution.set(values);
        compareClose(distribution.mean(), moments.at(0));
        compareClose(distribution.sigma(), moments.at(1));
        QCOMPARE(distribution.sigma() > 0.0, moments.at(1) > 0.0);
        compareClose(statistics::variance(statistics::finiteValues(values)), moments.at(1) * moments.at(1));

        const FiveNumbers actual = statistics::fiveNumbers(statistics::sortedFiniteValues(values));
        QTEST(QVector<double>({actual.minimum, actual.q1, actual.median, actual.q3, actual.maximum}), "five");
    }

    void density_data()
    {
        columns<double, double, double, double>("mean", "sigma", "x", "expected");

        row("standard, one sigma", 0.0, 1.0, 1.0, 0.24197072451914345);
        row("wide falls faster", 10.0, 2.0, 12.0, 6.691511288244271e-05);
        row("narrow falls slower", 10.0, 0.5, 11.0, 0.7041306535285993);
    }

    void density()
    {
        QFETCH(double, mean);
        QFETCH(double, sigma);
        QFETCH(double, x);
        QFETCH(double, expected);
        const double actual = statistics::density(x, {mean, sigma});
        QVERIFY2(std::abs(actual / expected - 1.0) < 1e-12, qPrintable(QString::number(actual, 'g', 17)));

        NormalDistribution distribution; // two values at mean +- sigma have just these moments
        distribution.set({mean - sigma, mean + sigma});
        QVERIFY(std::abs(distribution.density(x) / expected - 1.0) < 1e-12);
    }

    void densityOfCollapsedDistribution()
    {
        QCOMPARE(statistics::density(5.0, {5.0, 0.0}), kInf);
        QCOMPARE(statistics::density(5.0, {5.0, 1e-200}), kInf); // its square is 0
        QCOMPARE(NormalDistribution().density(1.0), kInf);
    }
};

QTEST_APPLESS_MAIN(StatisticsTest)
#include "tst_statistics.moc"
