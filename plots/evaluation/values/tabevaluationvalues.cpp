#include "plots/evaluation/values/tabevaluationvalues.h"
#include "plots/evaluation/common/sensorselection.h"

#include "app/theme.h"
#include "plots/charts/normalboxwidget.h"
#include "plots/charts/normaldistributionwidget.h"
#include "plots/charts/statistics.h"
#include "plots/common/logging.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/common/limitfield.h"
#include "plots/evaluation/common/trendchart.h"
#include "plots/evaluation/values/quantitypicker.h"
#include "plots/evaluation/values/quantitytablemodel.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>

namespace {

// Where a limit that is switched on for the first time begins.
constexpr double kSuggestedSigmas = 4.0;
constexpr int kTimeWidth = 180; // pixels of a time stamp

QString gradeSheet(CapabilityGrade grade)
{
    static const QHash<int, QString> colors{{int(CapabilityGrade::Good), QStringLiteral("#2E7D32")},
                                            {int(CapabilityGrade::Fair), QStringLiteral("#8A6D00")},
                                            {int(CapabilityGrade::Poor), QStringLiteral("#B3261E")}};
    return QStringLiteral("QLabel {font-weight: bold; color: %1;}").arg(colors.value(int(grade), theme::colorDark));
}

// To as many digits as figures have.
double rounded(double value)
{
    return QString::number(value, 'g', 6).toDouble();
}

// Mixed with white, so that black lines stand out.
QColor paled(const QColor &color)
{
    constexpr double kWhite = 0.55;
    const auto mix = [](double part) { return part + (1.0 - part) * kWhite; };
    return QColor::fromRgbF(mix(color.redF()), mix(color.greenF()), mix(color.blueF()));
}

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

void TabEvaluationValues::setCurrentSensor(int sensor)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << sensor;
    m_sensors->setSensor(sensor);
}

int TabEvaluationValues::chosenShot() const
{
    return m_table->currentIndex().row();
}

// --- What the user does ------------------------------------------------------------------------------------------

void TabEvaluationValues::onSensors_sensorChanged(int sensor)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << sensor;
    m_sensor = sensor;
    if (isVisible())
        refreshNow();
}

void TabEvaluationValues::onTable_currentChanged(const QModelIndex &current)
{
    m_chart->setChosenShot(current.row());
    if (!m_refreshing && current.column() >= QuantityTableModel::FirstQuantity)
        choose(m_shown.value(current.column() - QuantityTableModel::FirstQuantity));
}

void TabEvaluationValues::onHeader_sectionClicked(int section)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << section;
    if (section >= QuantityTableModel::FirstQuantity)
        choose(m_shown.value(section - QuantityTableModel::FirstQuantity));
}

void TabEvaluationValues::onQuantityBox_activated(int index)
{
    qCDebug(lcPlots) << Q_FUNC_INFO << index;
    if (index >= 0 && index < m_shown.size())
        choose(m_shown.at(index));
}

void TabEvaluationValues::onButtonQuantities_clicked()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_picker->popUpBelow(m_buttonQuantities);
}

// A column that is added is meant to be looked at.
void TabEvaluationValues::onPicker_toggled(const Quantity &quantity, bool shown)
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
    const int column = QuantityTableModel::FirstQuantity + m_tableModel->chosenColumn();
    m_table->setCurrentIndex(m_tableModel->index(shot, column));
    m_table->scrollTo(m_table->currentIndex());
}

void TabEvaluationValues::onLimits_edited()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    if (!data())
        return;
    data()->setLimits(m_sensor, data()->chosenQuantity(m_sensor), {m_lowerLimit->limit(), m_upperLimit->limit()});
    refreshNow();
}

void TabEvaluationValues::choose(const Quantity &quantity)
{
    if (!data() || data()->chosenQuantity(m_sensor) == quantity)
        return;
    data()->choose(m_sensor, quantity);
    refreshNow();
}

// --- Showing the data --------------------------------------------------------------------------------------------

void TabEvaluationValues::refresh()
{
    const QScopedValueRollback<bool> refreshing(m_refreshing, true);
    m_sensors->showSensors(model());
    m_shown = data()->shownQuantities(m_sensor);
    showTable();
    showChoice();
    showLimits();
    const QuantitySeries series = data()->series(m_sensor, data()->chosenQuantity(m_sensor));
    showSeries(series);
    showCapability(series);
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
    const int shot = chosenShot();
    const int column = m_shown.indexOf(data()->chosenQuantity(m_sensor));
    m_tableModel->setContent(std::move(content));
    m_tableModel->setChosenColumn(column);
    fitColumns();
    if (chosenShot() < 0 && shot >= 0) // with other columns the table has forgotten it
        m_table->setCurrentIndex(m_tableModel->index(shot, QuantityTableModel::FirstQuantity + column));
    m_chart->setChosenShot(chosenShot());
}

// Few columns share the width; many are as wide as they need to be.
void TabEvaluationValues::fitColumns()
{
    QHeaderView *header = m_table->horizontalHeader();
    int needed = 0;
    for (int column = 0; column < header->count(); ++column)
        needed += std::max(header->sectionSizeHint(column), column == QuantityTableModel::Timestamp ? kTimeWidth : 0);
    const bool fits = needed <= m_table->viewport()->width();
    for (int column = QuantityTableModel::FirstQuantity; column < header->count(); ++column)
        header->setSectionResizeMode(column, fits ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

void TabEvaluationValues::showChoice()
{
    QStringList names;
    for (const Quantity &quantity : qAsConst(m_shown))
        names.append(data()->quantityName(quantity));
    QStringList listed;
    for (int i = 0; i < m_quantityBox->count(); ++i)
        listed.append(m_quantityBox->itemText(i));
    if (names != listed) {
        m_quantityBox->clear();
        m_quantityBox->addItems(names);
    }
    m_quantityBox->setCurrentIndex(m_shown.indexOf(data()->chosenQuantity(m_sensor)));
    m_quantityBox->setToolTip(m_quantityBox->currentText());
    QStringList phases;
    for (int phase = 0; phase < Quantity::kNumPhases; ++phase)
        phases.append(data()->model()->phaseName(phase));
    m_picker->setPhaseNames(phases);
    m_picker->setShown(m_shown);
}

void TabEvaluationValues::showLimits()
{
    const Quantity quantity = data()->chosenQuantity(m_sensor);
    const ToleranceLimits limits = data()->limits(m_sensor, quantity);
    const QString unit = data()->quantityUnit(m_sensor, quantity);
    for (LimitField *field : {m_lowerLimit, m_upperLimit})
        field->setUnit(unit);
    m_lowerLimit->setLimit(limits.lower);
    m_upperLimit->setLimit(limits.upper);
}

void TabEvaluationValues::showSeries(const QuantitySeries &series)
{
    const Quantity quantity = data()->chosenQuantity(m_sensor);
    const QString unit = data()->quantityUnit(m_sensor, quantity);
    const QColor color = data()->model()->color(m_sensor);
    const QList<double> values(series.values.begin(), series.values.end());
    m_chart->setColor(color);
    m_chart->setTitle(withUnit(data()->quantityName(quantity), unit, tr("%1 [%2]")));
    m_chart->set(series.shots, data()->limits(m_sensor, quantity));
    m_box->setFillColor(paled(color));
    m_box->setUnit(unit);
    m_box->set(values);
    m_bell->setCurveColor(color);
    m_bell->set(values);
    const statistics::Moments moments = statistics::moments(series.values);
    m_lowerLimit->setSuggestion(rounded(moments.mean - kSuggestedSigmas * moments.sigma));
    m_upperLimit->setSuggestion(rounded(moments.mean + kSuggestedSigmas * moments.sigma));
}

void TabEvaluationValues::showCapability(const QuantitySeries &series)
{
    const ToleranceLimits limits = data()->limits(m_sensor, data()->chosenQuantity(m_sensor));
    const Capability figures = capability(series.values, limits);
    m_cp->setText(tr("Cp %1").arg(capabilityText(figures.cp)));
    m_cpk->setText(tr("Cpk %1").arg(capabilityText(figures.cpk)));
    m_cpk->setStyleSheet(gradeSheet(gradeOf(figures)));
    const int outside = countOutside(series.values, limits);
    if (limits.isInverted())
        m_outside->setText(limits.lower == limits.upper ? tr("Grenzen sind gleich!")
                                                        : tr("Untere Grenze über oberer!"));
    else if (limits.isEmpty())
        m_outside->setText(tr("Keine Grenzen"));
    else
        m_outside->setText(tr("Außerhalb: %1 von %2").arg(outside).arg(series.values.size()));
    m_outside->setStyleSheet(
        gradeSheet(outside > 0 || limits.isInverted() ? CapabilityGrade::Poor : CapabilityGrade::Unknown));
}

void TabEvaluationValues::resizeEvent(QResizeEvent *event)
{
    EvaluationPage::resizeEvent(event);
    layout()->activate(); // the widgets have their new widths
    fitColumns();
}

void TabEvaluationValues::retranslateUi()
{
    m_labelQuantity->setText(tr("Größe"));
    m_quantityBox->setAccessibleName(tr("Dargestellte Größe"));
    m_buttonQuantities->setText(tr("&Spalten..."));
    m_buttonQuantities->setToolTip(tr("Größen der Tabelle wählen"));
    m_lowerLimit->setTitle(tr("&Untere Grenze"));
    m_upperLimit->setTitle(tr("&Obere Grenze"));
    m_table->setAccessibleName(tr("Werte der Schüsse"));
    m_chart->setAccessibleName(tr("Verlauf über die Schüsse"));
    m_bell->setAccessibleName(tr("Normalverteilung"));
    const QString sigma = tr("Mit der Standardabweichung der Grundgesamtheit (geteilt durch n)");
    m_cp->setToolTip(tr("(Obere - untere Grenze) / 6 Sigma. %1").arg(sigma));
    m_cpk->setToolTip(tr("Abstand des Mittelwerts von der näheren Grenze / 3 Sigma. %1").arg(sigma));
    m_sensors->showSensors(model());
}
