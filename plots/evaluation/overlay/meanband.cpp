#include "plots/evaluation/overlay/meanband.h"

#include <algorithm>

// Mean and squares are updated sample by sample: the usual sum of squares would lose all digits where values are large
// and scatter little.
void MeanBand::add(const QVector<double> &samples, int from, int shift, double lift)
{
    const int first = std::max(from, 0);
    if (shift < 0 || first >= samples.size())
        return;
    m_points.resize(std::max(m_points.size(), size_t(shift) + size_t(samples.size())));
    Point *point = m_points.data() + shift + first;
    for (int i = first; i < samples.size(); ++i, ++point) {
        const double value = samples[i] + lift;
        const double distance = value - point->mean;
        point->mean += distance / ++point->count;
        point->squares += distance * (value - point->mean);
    }
}
