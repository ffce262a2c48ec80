#include "plots/evaluation/overlay/alignment.h"

#include <algorithm>
#include <cmath>
#include <tuple>

bool operator==(const AlignmentRule &a, const AlignmentRule &b)
{
    return std::tie(a.by, a.offset, a.marker, a.threshold) == std::tie(b.by, b.offset, b.marker, b.threshold);
}

int firstCrossing(const QVector<double> &samples, double offset, double threshold, bool rising, int from)
{
    const int count = samples.size();
    const double *values = samples.constData();
    for (int i = std::max(from, 1); i < count; ++i) {
        const double before = values[i - 1] + offset;
        const double value = values[i] + offset;
        if (rising ? before < threshold && value >= threshold : before > threshold && value <= threshold)
            return i;
    }
    return -1;
}

int alignedSample(const QVector<double> &samples, const AlignmentRule &rule, int from)
{
    switch (rule.by) {
    case AlignBy::Start:
        return samples.isEmpty() ? -1 : 0;
    case AlignBy::Marker:
        return rule.marker >= 0 && rule.marker < samples.size() ? rule.marker : -1;
    case AlignBy::Rising:
    case AlignBy::Falling:
        return firstCrossing(samples, rule.offset, rule.threshold, rule.by == AlignBy::Rising, from);
    }
    return -1;
}

double alignedLift(const QVector<double> &samples, const AlignmentRule &rule, int aligned)
{
    const bool lifts = rule.by == AlignBy::Marker && aligned >= 0 && aligned < samples.size();
    return lifts ? -(samples[aligned] + rule.offset) : 0.0;
}

Deviation deviation(const AlignedCurve &curve, const AlignedCurve &reference, const Deviation &before)
{
    const qint64 ahead = qint64(reference.aligned) - curve.aligned; // sample i is compared with sample i + ahead
    const qint64 first = std::max<qint64>({before.compared, -ahead, 0});
    const qint64 end = std::min<qint64>(curve.samples->size(), reference.samples->size() - ahead);
    if (end <= first)
        return before;
    const double *values = curve.samples->constData();
    const double *others = reference.samples->constData();
    const double lift = curve.lift - reference.lift;
    double largest = before.largest.value_or(0.0);
    for (qint64 i = first; i < end; ++i)
        largest = std::max(largest, std::abs(values[i] - others[i + ahead] + lift));
    return {largest, int(end)};
}
