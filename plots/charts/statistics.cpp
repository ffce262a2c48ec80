#include "plots/charts/statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace statistics {

QVector<double> finiteValues(const QList<double> &values)
{
    QVector<double> finite;
    finite.reserve(values.size());
    std::copy_if(values.cbegin(), values.cend(), std::back_inserter(finite),
                 [](double value) { return std::isfinite(value); });
    return finite;
}

QVector<double> sortedFiniteValues(const QList<double> &values)
{
    QVector<double> sorted = finiteValues(values);
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

double mean(const QVector<double> &values)
{
    if (values.isEmpty())
        return 0.0;
    // Rounding may push the mean of equal values off them, which would leave a sigma where there is none.
    const auto [least, most] = std::minmax_element(values.cbegin(), values.cend());
    return std::clamp(std::accumulate(values.cbegin(), values.cend(), 0.0) / values.size(), *least, *most);
}

double variance(const QVector<double> &values)
{
    if (values.isEmpty())
        return 0.0;
    const double centre = mean(values);
    const auto addSquare = [centre](double sum, double value) { return sum + (value - centre) * (value - centre); };
    return std::accumulate(values.cbegin(), values.cend(), 0.0, addSquare) / values.size();
}

Moments moments(const QVector<double> &values)
{
    return {mean(values), std::sqrt(variance(values))};
}

double median(const QVector<double> &sorted)
{
    if (sorted.isEmpty())
        return 0.0;
    const int middle = sorted.size() / 2;
    if (sorted.size() % 2 == 1)
        return sorted.at(middle);
    return (sorted.at(middle - 1) + sorted.at(middle)) / 2.0;
}

FiveNumbers fiveNumbers(const QVector<double> &sorted)
{
    if (sorted.isEmpty())
        return {};
    const qint64 n = sorted.size();
    return {sorted.constFirst(), sorted.at(static_cast<int>(n / 4)), median(sorted),
            sorted.at(static_cast<int>(3 * n / 4)), sorted.constLast()};
}

UsualTimes withoutBreaks(const QVector<double> &times)
{
    QVector<double> sorted;
    std::copy_if(times.cbegin(), times.cend(), std::back_inserter(sorted), [](double time) { return time >= 0.0; });
    std::sort(sorted.begin(), sorted.end());
    const double usual = median(sorted);
    const double longest = usual > 0.0 ? usual * kBreakFactor : std::numeric_limits<double>::infinity();
    UsualTimes result;
    std::copy_if(times.cbegin(), times.cend(), std::back_inserter(result.values),
                 [longest](double time) { return time >= 0.0 && time <= longest; });
    result.leftOut = times.size() - result.values.size();
    return result;
}

double density(double x, Moments moments)
{
    const double square = moments.sigma * moments.sigma;
    const double width = std::sqrt(6.28318530717958 * square);
    if (!(width > 0.0))
        return std::numeric_limits<double>::infinity();
    const double distance = x - moments.mean;
    return std::exp(-(distance * distance) * 0.5 * moments.sigma * moments.sigma) / width;
}

} // namespace statistics
