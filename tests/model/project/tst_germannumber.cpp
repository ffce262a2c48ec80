#include "model/project/germannumber.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QLocale>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

const QLocale &german()
{
    static const QLocale locale(QLocale::German);
    return locale;
}

QByteArray written(double value)
{
    char text[kMaxGermanNumberLength];
    const char *end = writeGermanNumber(text, value);
    return QByteArray(text, static_cast<int>(end - text));
}

/// Compares both texts of a number and counts; the first difference is kept.
struct Comparison
{
    int count = 0;
    QString difference;

    void add(double value)
    {
        ++count;
        const QByteArray expected = german().toString(value, 'g', 6).toUtf8();
        const QByteArray actual = written(value);
        if (expected != actual && difference.isEmpty())
            difference = "%1: %2 instead of %3"_s.arg(QString::number(value, 'g', 17), QString::fromUtf8(actual),
                                                      QString::fromUtf8(expected));
    }

    void addWithNeighbours(double value)
    {
        add(value);
        add(std::nextafter(value, -std::numeric_limits<double>::max()));
        add(std::nextafter(value, std::numeric_limits<double>::max()));
    }
};

using Engine = std::mt19937_64;

double randomBits(Engine &engine)
{
    const std::uint64_t bits = engine();
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// What a sensor measures: a few decimals.
double measured(Engine &engine)
{
    const double value = std::uniform_int_distribution<int>(-40000000, 40000000)(engine);
    return value / std::pow(10.0, std::uniform_int_distribution<int>(0, 7)(engine));
}

/// A number with six digits and a half of the sixth, which is one exactly as long as the power of ten is.
double nearTie(Engine &engine)
{
    const double value = std::uniform_int_distribution<int>(100000, 999999)(engine) + 0.5;
    const int exponent = std::uniform_int_distribution<int>(-25, 25)(engine);
    return exponent < 0 ? value / std::pow(10.0, -exponent) : value * std::pow(10.0, exponent);
}

/// A multiple of a power of two small enough that its decimal expansion ends in an exact half.
double exactTie(Engine &engine)
{
    const int halvings = std::uniform_int_distribution<int>(1, 16)(engine);
    return std::ldexp(std::uniform_int_distribution<int>(1, 1 << 27)(engine), -halvings);
}

} // namespace

using Source = double (*)(Engine &);
Q_DECLARE_METATYPE(Source)

class TestGermanNumber : public QObject
{
    Q_OBJECT

private slots:
    void knownTexts_data()
    {
        columns<double, QByteArray>("value", "text");
        row("comma", 1.5, "1,5"_ba);
        row("group", 1234.5, "1.234,5"_ba);
        row("six digits", 1234567.0, "1,23457e+06"_ba);
        row("tie away from zero", 1573.625, "1.573,63"_ba);
        row("negative tie", -1573.625, "-1.573,63"_ba);
        row("below a tie", std::nextafter(1573.625, 0.0), "1.573,62"_ba);
        row("no tie as a double", 2.000005, "2"_ba);
        row("carry", 999999.5, "1e+06"_ba);
        row("last without exponent", 0.0001, "0,0001"_ba);
        row("first with exponent", 0.00001, "1e-05"_ba);
        row("largest", std::numeric_limits<double>::max(), "1,79769e+308"_ba);
        row("smallest", 5e-324, "4,94066e-324"_ba);
        row("negative zero", -0.0, "0"_ba);
    }

    void knownTexts()
    {
        QFETCH(double, value);
        QFETCH(QByteArray, text);
        QCOMPARE(written(value), text);
        QCOMPARE(german().toString(value, 'g', 6).toUtf8(), text);
    }

    void sameBytesAsTheLocale_data()
    {
        columns<Source, int>("source", "count");
        row("any bits", Source(randomBits), 250000);
        row("measured", Source(measured), 250000);
        row("near ties", Source(nearTie), 75000);   // with their neighbours
        row("exact ties", Source(exactTie), 75000); // with their neighbours
        row("extremes", Source(nullptr), 0);
    }

    void sameBytesAsTheLocale()
    {
        QFETCH(Source, source);
        QFETCH(int, count);
        Engine engine(20240305);
        Comparison comparison;
        const bool hasTies = source == Source(nearTie) || source == Source(exactTie);
        for (int i = 0; i < count; ++i) {
            if (hasTies)
                comparison.addWithNeighbours(source(engine));
            else
                comparison.add(source(engine));
        }
        if (!source) {
            for (int exponent = -324; exponent <= 308; ++exponent) {
                for (double digits : {1.0, 9.0, 1.234565, 4.999995, 9.999994999999, 9.999995, 9.99999500001})
                    comparison.addWithNeighbours(digits * std::pow(10.0, exponent));
            }
            const double infinity = std::numeric_limits<double>::infinity();
            for (double value : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN(), 0.0})
                comparison.add(value);
        }
        QVERIFY(comparison.count >= 13000);
        QCOMPARE(comparison.difference, QString());
    }
};

QTEST_GUILESS_MAIN(TestGermanNumber)
#include "tst_germannumber.moc"
