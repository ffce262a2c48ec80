#include "kit/gauge/qcgaugemath.h"

#include <QtTest>

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(qcgauge::Scale)

using qcgauge::Scale;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();

bool isNear(double a, double b)
{
    return std::abs(a - b) <= 1e-9 * std::max(1.0, std::abs(b));
}

} // namespace

class TestQcGaugeMath : public QObject
{
    Q_OBJECT

private slots:
    void valueHasAFraction_data();
    void valueHasAFraction();
    void valueHasAnAngle_data();
    void valueHasAnAngle();
    void stepsAreNice_data();
    void stepsAreNice();
    void ladderGoesOn();
    void marksAreMultiples_data();
    void marksAreMultiples();
    void numbersAreReadable_data();
    void numbersAreReadable();
};

void TestQcGaugeMath::valueHasAFraction_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 25.0 << 0.0 << 100.0 << 0.25;
    QTest::newRow("around zero") << 0.0 << -10.0 << 30.0 << 0.25;
    QTest::newRow("below") << -50.0 << 0.0 << 100.0 << -0.5;
    QTest::newRow("reversed") << 25.0 << 100.0 << 0.0 << 0.75;
    QTest::newRow("empty range") << 7.0 << 5.0 << 5.0 << 0.0;
    QTest::newRow("no number") << kNan << 0.0 << 100.0 << 0.0;
    QTest::newRow("infinite") << kInfinity << 0.0 << 100.0 << 0.0;
    QTest::newRow("widest range") << 0.0 << -kLargest << kLargest << 0.5;
}

void TestQcGaugeMath::valueHasAFraction()
{
    QFETCH(double, value);
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, expected);
    QVERIFY(isNear(qcgauge::fraction(value, from, to), expected));
    const double kept = std::min(1.0, std::max(0.0, expected));
    QVERIFY(isNear(qcgauge::lengthAt(value, from, to, 60.0), 60.0 * kept));
}

void TestQcGaugeMath::valueHasAnAngle_data()
{
    QTest::addColumn<Scale>("scale");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("back"); // the value at that angle
    const Scale usual{0.0, 10.0, -120.0, 240.0};
    QTest::newRow("middle") << usual << 5.0 << 0.0 << 5.0;
    QTest::newRow("a bit above") << usual << 10.1 << 122.4 << 10.0;
    QTest::newRow("far above") << usual << 1e300 << 123.0 << 10.0;
    QTest::newRow("far below") << usual << -1e300 << -123.0 << 0.0;
    QTest::newRow("no number") << usual << kNan << -120.0 << 0.0;
    const Scale againstTheClock{0.0, 10.0, 90.0, -180.0};
    QTest::newRow("against the clock") << againstTheClock << 2.5 << 45.0 << 2.5;
    QTest::newRow("against the clock, above") << againstTheClock << 99.0 << -93.0 << 10.0;
    QTest::newRow("reversed") << Scale{10.0, 0.0, -120.0, 240.0} << 12.5 << -123.0 << 10.0;
    QTest::newRow("empty range") << Scale{3.0, 3.0, -120.0, 240.0} << 9.0 << -120.0 << 3.0;
}

void TestQcGaugeMath::valueHasAnAngle()
{
    QFETCH(Scale, scale);
    QFETCH(double, value);
    QFETCH(double, angle);
    QFETCH(double, back);
    QVERIFY(isNear(qcgauge::angleAt(scale, value, 3.0), angle));
    QVERIFY(isNear(qcgauge::valueAt(scale, angle), back));
}

void TestQcGaugeMath::stepsAreNice_data()
{
    QTest::addColumn<double>("span");
    QTest::addColumn<int>("atMost");
    QTest::addColumn<double>("expected");
    QTest::newRow("fits exactly") << 100.0 << 11 << 10.0;
    QTest::newRow("one mark too many") << 100.0 << 10 << 20.0;
    QTest::newRow("to five") << 250.0 << 6 << 50.0;
    QTest::newRow("next power") << 99.0 << 11 << 10.0;
    QTest::newRow("small") << 0.003 << 4 << 0.001;
    QTest::newRow("negative span") << -100.0 << 11 << 10.0;
    QTest::newRow("too few") << 100.0 << 0 << 100.0;
    QTest::newRow("empty") << 0.0 << 10 << 0.0;
    QTest::newRow("no number") << kNan << 10 << 0.0;
    QTest::newRow("infinite") << kInfinity << 10 << 2e307;
    QTest::newRow("next to nothing") << 5e-324 << 10 << 0.0;
}

void TestQcGaugeMath::stepsAreNice()
{
    QFETCH(double, span);
    QFETCH(int, atMost);
    QFETCH(double, expected);
    const double step = qcgauge::niceStep(span, atMost);
    QVERIFY2(expected == 0.0 ? step == 0.0 : isNear(step / expected, 1.0), qPrintable(QString::number(step)));
}

void TestQcGaugeMath::ladderGoesOn()
{
    QVERIFY(isNear(qcgauge::coarserStep(1e-7) * 1e7, 2.0));
    QVERIFY(isNear(qcgauge::coarserStep(0.2), 0.5));
    QVERIFY(isNear(qcgauge::coarserStep(5e6), 1e7));
    QCOMPARE(qcgauge::partsOfStep(0.2), 4);
    QCOMPARE(qcgauge::partsOfStep(5e6), 5);
}

void TestQcGaugeMath::marksAreMultiples_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("last");
    QTest::newRow("ends included") << 0.0 << 1.0 << 0.1 << 11 << 0.0 << 1.0;
    QTest::newRow("ends between marks") << -3.5 << 7.2 << 2.0 << 5 << -2.0 << 6.0;
    QTest::newRow("reversed") << 10.0 << 0.0 << 5.0 << 3 << 0.0 << 10.0;
    QTest::newRow("too many") << 0.0 << 1.0 << 1e-6 << 2 << 0.0 << 1.0;
    QTest::newRow("beyond exact numbers") << 1e20 << 1e20 + 1e6 << 1e3 << 2 << 1e20 << 1e20 + 1e6;
    QTest::newRow("widest range") << -kLargest << kLargest << 5e307 << 7 << -1.5e308 << 1.5e308;
    QTest::newRow("no step") << 0.0 << 1.0 << 0.0 << 0 << 0.0 << 0.0;
}

void TestQcGaugeMath::marksAreMultiples()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, step);
    QFETCH(int, count);
    const std::vector<double> marks = qcgauge::multiples(from, to, step);
    QCOMPARE(static_cast<int>(marks.size()), count);
    if (count == 0)
        return;
    QTEST(marks.front(), "first");
    QTEST(marks.back(), "last");
}

void TestQcGaugeMath::numbersAreReadable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const QLocale german(QLocale::German);
    using namespace qcgauge;
    const auto row = [](const char *name, const QString &text, const QString &expected) {
        QTest::newRow(name) << text << expected;
    };
    row("no groups", numberText(1234567.25, 1, german), QStringLiteral("1234567,3"));
    row("no negative zero", numberText(-0.04, 1, german), QStringLiteral("0,0"));
    row("long value", numberText(-1.23456789e12, 3, german), QStringLiteral("-1,23457e+12"));
    row("mark of a coarse step", markText(1500.0, 500.0, german), QStringLiteral("1500"));
    row("mark of a fine step", markText(3 * 0.1, 0.1, german), QStringLiteral("0,3"));
    row("mark of a tiny step", markText(4e-8, 2e-8, german), QStringLiteral("4e-08"));
    const auto fittingAny = [&](double value, int decimals, double digits) {
        return fittingNumber(value, decimals, german, digits,
                             [](const QString &tried) { return double(tried.size()); });
    };
    const auto fitting = [&](double digits) { return fittingAny(12.3456, 3, digits); };
    row("mark of a step off the ladder", markText(7.5, 2.5, german), QStringLiteral("7,5"));
    const auto shortMark = [&](double value) { return shortMarkText(value, 5e4, german); };
    row("short zero", shortMark(0.0), QStringLiteral("0"));
    row("short mark", shortMark(-1.5e5), QStringLiteral("-150k"));
    row("short mark of another prefix", shortMark(1.05e6), QStringLiteral("1,05M"));
    row("too large to be short", shortMark(2e12), QStringLiteral("2e+12"));
    row("all decimals", fitting(6.0), QStringLiteral("12,346"));
    row("fewer decimals", fitting(5.5), QStringLiteral("12,35"));
    row("hardly any room", fitting(1.0), QStringLiteral("12"));
    row("cut digits would mislead", fittingAny(-1234567.8, 1, 6.0), QStringLiteral("-1,23M"));
    row("zeros would mislead", fittingAny(5e-8, 9, 7.0), QStringLiteral("5e-08"));
    row("marks of large numbers", markText(1.55e9, 5e7, german), QStringLiteral("1,55e+09"));
}

void TestQcGaugeMath::numbersAreReadable()
{
    QFETCH(QString, text);
    QTEST(text, "expected");
}

QTEST_APPLESS_MAIN(TestQcGaugeMath)
#include "tst_qcgaugemath.moc"
