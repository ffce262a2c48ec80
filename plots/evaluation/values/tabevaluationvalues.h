#pragma once

#include "plots/evaluation/common/evaluationpage.h"
#include "plots/evaluation/common/shotquantity.h"

class DistributionPanel;
class LimitsPanel;
class QuantityChoice;
class SensorSelection;
class TrendChart;
class ValuesTable;
struct QuantitySeries;

/// The evaluation page of the values: quantities of one sensor's shots in a table, and the chosen one of them as a
/// trend, a box plot, a bell curve and against its tolerance limits. Shots are numbered from 0, as on the other pages.
class TabEvaluationValues final : public EvaluationPage
{
    Q_OBJECT

public:
    explicit TabEvaluationValues(QWidget *parent = nullptr);

    [[nodiscard]] int currentSensor() const { return m_sensor; }
    /// Ignored outside 0 to 4.
    void setCurrentSensor(int sensor);
    /// The shot of the table's current row; -1 if there is none.
    [[nodiscard]] int chosenShot() const;

protected:
    void refresh() override;
    void retranslateUi() override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void onSensors_sensorChanged(int sensor);
    void onTable_shotChosen(int shot);
    void onQuantity_chosen(int index);
    void onChoice_toggled(const Quantity &quantity, bool shown);
    void onChart_shotClicked(int shot);
    void onLimits_edited();

private:
    void createLayout();
    void connectWidgets();

    void showTable();
    void showChoice();
    void showSeries(const QuantitySeries &series);

    int m_sensor = 0;
    QVector<Quantity> m_shown; // as the table and the list show them
    SensorSelection *m_sensors = nullptr;
    ValuesTable *m_table = nullptr;
    TrendChart *m_chart = nullptr;
    QuantityChoice *m_choice = nullptr;
    LimitsPanel *m_limits = nullptr;
    DistributionPanel *m_distribution = nullptr;
};
