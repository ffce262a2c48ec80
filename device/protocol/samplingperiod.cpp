#include "device/protocol/samplingperiod.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<int, 11> kPeriods{1, 5, 10, 20, 25, 50, 100, 200, 250, 500, 1000};

QString labelOf(int milliseconds)
{
    return QString::number(milliseconds) + QLatin1String("ms");
}

} // namespace

QStringList samplingPeriodLabels()
{
    QStringList labels;
    for (int period : kPeriods)
        labels.append(labelOf(period));
    return labels;
}

QString samplingPeriodLabel(int milliseconds)
{
    const bool offered = std::find(kPeriods.begin(), kPeriods.end(), milliseconds) != kPeriods.end();
    return offered ? labelOf(milliseconds) : QString();
}

QString samplingPeriodCommand(const QString &label)
{
    for (int period : kPeriods) {
        if (label == labelOf(period))
            return QStringLiteral("t=%1\n").arg(period);
    }
    return {};
}
