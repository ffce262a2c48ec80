#include "controller/project/deletionplan.h"

#include <algorithm>
#include <numeric>

namespace {

DeletionPlan::Step planPart(const RangePart &part, QVector<int> &left, qint64 removedBefore)
{
    DeletionPlan::Step step;
    step.part = part;
    const qint64 first = part.numbers.constFirst() - 1 - removedBefore;
    step.wanted = qint64{part.numbers.constLast()} - part.numbers.constFirst() + 1;
    if (step.wanted <= 0 || first < 0 || first >= left.size())
        return step;
    step.first = static_cast<int>(first);
    const int count = static_cast<int>(std::min<qint64>(left.size() - first, step.wanted));
    step.removed = left.mid(step.first, count);
    left.remove(step.first, count);
    return step;
}

} // namespace

QVector<int> DeletionPlan::removed() const
{
    QVector<int> all;
    for (const Step &step : steps)
        all += step.removed;
    return all;
}

DeletionPlan planDeletion(const QString &range, int measurements)
{
    DeletionPlan plan;
    QVector<int> left(std::max(measurements, 0));
    std::iota(left.begin(), left.end(), 0);
    const QVector<RangePart> parts = parseMeasurementRange(range);
    for (const RangePart &part : parts) {
        if (!part.isSingle() && !part.isSpan()) {
            plan.malformed = part;
            break;
        }
        plan.steps.append(planPart(part, left, measurements - left.size()));
    }
    return plan;
}
