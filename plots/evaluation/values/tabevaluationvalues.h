#pragma once

#include "model/sensordescription.h"
#include "plots/evaluation/common/evaluationpage.h"
#include "plots/evaluation/common/shotquantity.h"

#include <array>

class LimitField;
class NormalBoxWidget;
class NormalDistributionWidget;
class QComboBox;
class QLabel;
class QLayout;
class QModelIndex;
class QPushButton;
class QTableView;
class QuantityPicker;
class QuantityTableModel;
class SensorSelection;
class TrendChart;
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
    void onTable_currentChanged(const QModelIndex &current);
    void onHeader_sectionClicked(int section);
    void onQuantityBox_activated(int index);
    void onPicker_toggled(const Quantity &quantity, bool shown);
    void onButtonQuantities_clicked();
    void onChart_shotClicked(int shot);
    void onLimits_edited();

private:
    void createLayout();
    [[nodiscard]] QLayout *createChoice();
    [[nodiscard]] QLayout *createLimits();
    [[nodiscard]] QLayout *createLeftSide();
    [[nodiscard]] QLayout *createRightSide();
    void createTable();
    void connectWidgets();

    void choose(const Quantity &quantity);
    void showTable();
    void fitColumns();
    void showChoice();
    void showLimits();
    void showSeries(const QuantitySeries &series);
    void showCapability(const QuantitySeries &series);

    int m_sensor = 0;
    bool m_refreshing = false;
    QVector<Quantity> m_shown; // as the table and the list show them
    SensorSelection *m_sensors = nullptr;
    QTableView *m_table = nullptr;
    QuantityTableModel *m_tableModel = nullptr;
    QLabel *m_labelQuantity = nullptr;
    QComboBox *m_quantityBox = nullptr;
    QPushButton *m_buttonQuantities = nullptr;
    QuantityPicker *m_picker = nullptr;
    LimitField *m_lowerLimit = nullptr;
    LimitField *m_upperLimit = nullptr;
    QLabel *m_cp = nullptr;
    QLabel *m_cpk = nullptr;
    QLabel *m_outside = nullptr;
    TrendChart *m_chart = nullptr;
    NormalBoxWidget *m_box = nullptr;
    NormalDistributionWidget *m_bell = nullptr;
};
