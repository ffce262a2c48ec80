#pragma once

#include "plots/charts/statistics.h"

/// Mean and sigma of a list of numbers, and the density that follows from them.
class NormalDistribution
{
public:
    /// Numbers that are not finite are ignored; an empty list gives 0 for both.
    void set(QList<double> values);

    [[nodiscard]] double mean() const { return m_moments.mean; }
    /// Standard deviation of the population.
    [[nodiscard]] double sigma() const { return m_moments.sigma; }
    /// statistics::density(): infinite everywhere for a sigma of 0.
    [[nodiscard]] double density(double x) const;

private:
    statistics::Moments m_moments;
};
