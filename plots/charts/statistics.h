#pragma once

#include <QList>
#include <QVector>

/// Figures of a list of numbers. Nothing here fails: all figures of an empty list are 0. A list with numbers that are
/// not finite gives figures that are not finite; finiteValues() and sortedFiniteValues() leave such numbers out.
namespace statistics {

struct Moments
{
    double mean = 0.0;
    double sigma = 0.0; ///< of the population: the squares are divided by n, not by n - 1
};

/// Five numbers that a box plot shows; quartiles are elements of the list, not interpolated.
struct FiveNumbers
{
    double minimum = 0.0;
    double q1 = 0.0; ///< element n / 4
    double median = 0.0;
    double q3 = 0.0; ///< element 3 n / 4
    double maximum = 0.0;
};

[[nodiscard]] QVector<double> finiteValues(const QList<double> &values);
[[nodiscard]] QVector<double> sortedFiniteValues(const QList<double> &values);

[[nodiscard]] double mean(const QVector<double> &values);
[[nodiscard]] double variance(const QVector<double> &values);
[[nodiscard]] Moments moments(const QVector<double> &values);

/// The list must be sorted in ascending order.
[[nodiscard]] double median(const QVector<double> &sorted);
[[nodiscard]] FiveNumbers fiveNumbers(const QVector<double> &sorted);

/// The times between shots that belong to production.
struct UsualTimes
{
    QVector<double> values; ///< in their order
    int leftOut = 0;        ///< how many are missing
};

/// Leaves out breaks, which are longer than kBreakFactor times the median, and times below 0, which come from a clock
/// that was set. With a median of 0 there are no breaks.
[[nodiscard]] UsualTimes withoutBreaks(const QVector<double> &times);
constexpr double kBreakFactor = 5.0;

/// exp(-(x - mean)^2 * 0.5 * sigma * sigma) / sqrt(2 pi sigma * sigma): the exponent is multiplied by sigma squared,
/// where a normal density divides by it. Infinite for a sigma of 0.
[[nodiscard]] double density(double x, Moments moments);

} // namespace statistics
