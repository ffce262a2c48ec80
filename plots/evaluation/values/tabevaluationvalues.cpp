#include "plots/evaluation/values/tabevaluationvalues.h"

#include "plots/common/logging.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/common/sensorselection.h"
#include "plots/evaluation/common/trendchart.h"
#include "plots/evaluation/values/distributionpanel.h"
#include "plots/evaluation/values/limitspanel.h"
#include "plots/evaluation/values/quantitychoice.h"
#include "plots/evaluation/values/valuestable.h"

#include <QVBoxLayout>

namespace {

constexpr int kWidestRightSide = 560; // pixels

QString withUnit(const QString &text, const QString &unit, const QString &pattern)
{
    return unit.isEmpty() ? text : pattern.arg(text, unit);
}

std::vector<QDateTime> timestampsOf(const Model &model, int count)
{
    std::vector<QDateTime> timestamps;
    timestamps.reserve(static_cast<std::size_t>(count));
    for (int shot = 0; shot < count; ++shot)
        timestamps.push_back(model.timestamp(shot));
    return timestamps;
}

} // namespace

TabEvaluationValues::TabEvaluationValues(QWidget *parent)
    : EvaluationPage(parent)
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    createLayout();
    retranslateUi();
    connectWidgets();
}

void TabEvaluationValues::createLayout()
{
    // The tab key follows the order in which the parts are created.
    m_sensors = new SensorSelection(this);
    m_table = new ValuesTable(this);
    m_chart = new TrendChart(this);
    m_chart->setObjectName(QStringLiteral("trendChart"));
    auto *left = new QVBoxLayout;
    left->addWidget(m_table, 1);
    left->addWidget(m_chart, 1);
    auto *rightSide = new QWidget(this);
    rightSide->setMaximumWidth(kWidestRightSide);
    m_choice = new QuantityChoice(rightSide);
    m_limits = new LimitsPanel(rightSide);
    m_distribution = new DistributionPanel(rightSide);
    auto *right = new QVBoxLayout(rightSide);
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(4);
    right->addWidget(m_choice);
    right->addWidget(m_limits);
    right->addWidget(m_distribution, 1);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(12);
    middle->addLayout(left, 3);
    middle->addWidget(rightSide, 2);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_sensors);
    layout->addLayout(middle, 1);
}

void TabEvaluationValues::connectWidgets()
{
    connect(m_sensors, &SensorSelection::sensorChanged, this, &TabEvaluationValues::onSensors_sensorChanged);
    connect(m_table, &ValuesTable::shotChosen, this, &TabEvaluationValues::onTable_shotChosen);
    connect(m_table, &ValuesTable::quantityChosen, this, &TabEvaluationValues::onQuantity_chosen);
    connect(m_choice, &QuantityChoice::chosen, this, &TabEvaluationValues::onQuantity_chosen);
    connect(m_choice, &QuantityChoice::toggled, this, &TabEvaluationValues::onChoice_toggled);
    connect(m_chart, &TrendChart::shotClicked, this, &TabEvaluationValues::onChart_shotClicked);
    connect(m_limits, &LimitsPanel::edited, this, &TabEvaluationValues::onLimits_edited);
}

void TabEvaluationValues::setCurrentSensor(int sensor)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << sensor;
    m_sensors->setSensor(sensor);
}

int TabEvaluationValues::chosenShot() const
{
    return m_table->chosenShot();
}

// --- What the user does ------------------------------------------------------------------------------------------

void TabEvaluationValues::onSensors_sensorChanged(int sensor)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << sensor;
    m_sensor = sensor;
    if (isVisible())
        refreshNow();
}

void TabEvaluationValues::onTable_shotChosen(int shot)
{
    m_chart->setChosenShot(shot);
}

void TabEvaluationValues::onQuantity_chosen(int index)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << index;
    if (!data() || index < 0 || index >= m_shown.size() || data()->chosenQuantity(m_sensor) == m_shown.at(index))
        return;
    data()->choose(m_sensor, m_shown.at(index));
    refreshNow();
}

// A column that is added is meant to be looked at.
void TabEvaluationValues::onChoice_toggled(const Quantity &quantity, bool shown)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << quantity.key() << shown;
    if (!data())
        return;
    data()->setShown(m_sensor, quantity, shown);
    if (shown)
        data()->choose(m_sensor, quantity);
    refreshNow();
}

void TabEvaluationValues::onChart_shotClicked(int shot)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << shot;
    m_table->chooseShot(shot);
}

void TabEvaluationValues::onLimits_edited()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!data())
        return;
    data()->setLimits(m_sensor, data()->chosenQuantity(m_sensor), m_limits->limits());
    refreshNow();
}

// --- Showing the data --------------------------------------------------------------------------------------------

void TabEvaluationValues::refresh()
{
    m_shown = data()->shownQuantities(m_sensor);
    showTable();
    showChoice();
    showSeries(data()->series(m_sensor, data()->chosenQuantity(m_sensor)));
}

void TabEvaluationValues::showTable()
{
    QuantityTableModel::Content content;
    content.timestamps = timestampsOf(*data()->model(), data()->numShots(m_sensor));
    for (const Quantity &quantity : qAsConst(m_shown)) {
        const QString unit = data()->quantityUnit(m_sensor, quantity);
        content.columns.push_back({quantity, withUnit(data()->quantityName(quantity), unit, tr("%1 [%2]")),
                                   data()->limits(m_sensor, quantity), data()->series(m_sensor, quantity).shots});
    }
    m_table->setContent(std::move(content), m_shown.indexOf(data()->chosenQuantity(m_sensor)));
}

void TabEvaluationValues::showChoice()
{
    QStringList names;
    for (const Quantity &quantity : qAsConst(m_shown))
        names.append(data()->quantityName(quantity));
    QStringList phases;
    for (int phase = 0; phase < Quantity::kNumPhases; ++phase)
        phases.append(data()->model()->phaseName(phase));
    m_choice->setPhaseNames(phases);
    m_choice->setQuantities(m_shown, names, m_shown.indexOf(data()->chosenQuantity(m_sensor)));
}

void TabEvaluationValues::showSeries(const QuantitySeries &series)
{
    const Quantity quantity = data()->chosenQuantity(m_sensor);
    const ToleranceLimits limits = data()->limits(m_sensor, quantity);
    const QString unit = data()->quantityUnit(m_sensor, quantity);
    const QColor color = data()->model()->color(m_sensor);
    m_chart->setColor(color);
    m_chart->setTitle(withUnit(data()->quantityName(quantity), unit, tr("%1 [%2]")));
    m_chart->set(series.shots, limits);
    m_limits->set(series.values, limits, unit);
    m_distribution->set(series.values, unit, color);
}

void TabEvaluationValues::resizeEvent(QResizeEvent *event)
{
    EvaluationPage::resizeEvent(event);
    layout()->activate(); // the table has its new width from here on
    m_table->fitColumns();
}

void TabEvaluationValues::retranslateUi()
{
    m_chart->setAccessibleName(tr("Verlauf über die Schüsse"));
}
