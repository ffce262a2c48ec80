#include "plots/charts/normaldistribution.h"

#include "plots/common/logging.h"

// By value, as its log line says.
void NormalDistribution::set(QList<double> values) // NOLINT(performance-unnecessary-value-param)
{
    m_moments = statistics::moments(statistics::finiteValues(values));
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " mean=" << mean() << " sigma=" << sigma();
}

double NormalDistribution::density(double x) const
{
    return statistics::density(x, m_moments);
}
