#include "plots/evaluation/dashboard/dashboard.h"

#include "plots/charts/statistics.h"
#include "plots/common/logging.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/dashboard/cycletile.h"
#include "plots/evaluation/dashboard/dashboardtile.h"

#include <QGridLayout>

#include <algorithm>

namespace {

constexpr int kColumns = 3;

TrendValues lastOf(const std::vector<std::optional<double>> &shots)
{
    const std::size_t count = std::min<std::size_t>(shots.size(), DashboardTile::kSparklineShots);
    return {shots.end() - static_cast<std::ptrdiff_t>(count), shots.end()};
}

} // namespace

Dashboard::Dashboard(QWidget *parent)
    : EvaluationPage(parent)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0); // the tiles' shadows already keep them apart
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        auto *tile = new DashboardTile(this);
        tile->setObjectName(QStringLiteral("tile%1").arg(sensor));
        grid->addWidget(tile, sensor / kColumns, sensor % kColumns);
        connect(tile, &QAbstractButton::clicked, this, [this, sensor] { emit valuesWanted(sensor); });
        m_tiles[static_cast<std::size_t>(sensor)] = tile;
    }
    m_cycleTile = new CycleTile(this);
    m_cycleTile->setObjectName(QStringLiteral("tileCycle"));
    grid->addWidget(m_cycleTile, kNumSensors / kColumns, kNumSensors % kColumns);
    connect(m_cycleTile, &QAbstractButton::clicked, this, &Dashboard::runtimesWanted);
    for (int column = 0; column < kColumns; ++column)
        grid->setColumnStretch(column, 1);
    retranslateUi();
}

void Dashboard::refresh()
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        showSensor(sensor);
    showCycle();
}

void Dashboard::showSensor(int sensor)
{
    const Quantity quantity = data()->chosenQuantity(sensor);
    const QuantitySeries series = data()->series(sensor, quantity);
    DashboardTile::Content content;
    content.sensor = data()->sensorName(sensor);
    content.quantity = data()->quantityName(quantity);
    content.unit = data()->quantityUnit(sensor, quantity);
    content.color = data()->model()->color(sensor);
    content.latest = series.shots.empty() ? std::nullopt : series.shots.back();
    content.limits = data()->limits(sensor, quantity);
    content.capability = capability(series.values, content.limits);
    content.count = series.values.size();
    content.outside = countOutside(series.values, content.limits);
    content.lastShots = lastOf(series.shots);
    m_tiles[static_cast<std::size_t>(sensor)]->set(content);
}

void Dashboard::showCycle()
{
    CycleTile::Content content;
    content.shots = data()->numShots(0);
    content.latestCycle = data()->cycleSeconds(content.shots - 1);
    // The first shot has no cycle before it.
    const int first = std::max(1, content.shots - DashboardTile::kSparklineShots);
    QVector<double> cycles;
    for (int shot = first; shot < content.shots; ++shot)
        cycles.append(data()->cycleSeconds(shot).value_or(0.0));
    const statistics::UsualTimes usual = statistics::withoutBreaks(cycles);
    content.cyclesInMean = usual.values.size();
    content.breaks = usual.leftOut;
    if (content.cyclesInMean > 0)
        content.meanCycle = statistics::mean(usual.values);
    if (content.shots > 0)
        content.latestTimestamp = data()->model()->timestamp(content.shots - 1);
    m_cycleTile->set(content);
}

void Dashboard::retranslateUi()
{
    setAccessibleName(tr("Übersicht"));
}
