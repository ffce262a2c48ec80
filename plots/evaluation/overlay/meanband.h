#pragma once

#include <QVector>

#include <cmath>
#include <vector>

/// The mean of several curves and how far they scatter around it, at every index of the time axis where at least one
/// of them has a value.
class MeanBand
{
public:
    struct Point
    {
        int count = 0; ///< curves that have a value here
        double mean = 0.0;
        double squares = 0.0; ///< sum of the squared distances from the mean

        /// Of the population: the squares are divided by the count. 0 without a value.
        [[nodiscard]] double sigma() const { return count > 0 ? std::sqrt(squares / count) : 0.0; }
    };

    void clear() { m_points.clear(); }
    /// Takes in the samples of a curve from `from` on. Its sample 0 is at index `shift`, which is not negative;
    /// `lift` is added to every value.
    void add(const QVector<double> &samples, int from, int shift, double lift);

    /// From index 0 of the time axis on.
    [[nodiscard]] const std::vector<Point> &points() const { return m_points; }

private:
    std::vector<Point> m_points;
};
