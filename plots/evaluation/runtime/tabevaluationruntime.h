#pragma once

#include "model/sensordescription.h"
#include "plots/evaluation/common/modelpage.h"
#include "plots/evaluation/runtime/runtime.h"

#include <array>

class QModelIndex;
class RuntimeBoxPlots;
class RuntimePlot;
class RuntimeTable;
class SensorSelection;
class ThresholdFields;

/// The evaluation page of the runtimes: for one sensor, when each shot first falls below a start threshold and when it
/// last lies below a stop threshold, as a table, as three box plots, and drawn for the chosen shot.
///
/// Owns the thresholds of all sensors and the choice of the shot. Until a row is chosen, the newest shot is drawn.
class TabEvaluationRuntime final : public ModelPage
{
    Q_OBJECT

public:
    explicit TabEvaluationRuntime(QWidget *parent = nullptr);

    using QWidget::update;

    /// Not owned. nullptr is logged and changes nothing.
    void setModel(Model *model);

    /// 0 to 4: the first checked sensor button, 0 if none is.
    [[nodiscard]] int currentSensor() const;
    /// In units of the sensor; 0.0 for a sensor outside 0 to 4.
    [[nodiscard]] double startThreshold(int sensor) const;
    [[nodiscard]] double stopThreshold(int sensor) const;
    /// Moved into the range that can be edited. Ignored for a sensor outside 0 to 4 and for numbers that are not
    /// finite. Does not emit thresholdsChanged().
    void setThresholds(int sensor, double start, double stop);
    /// The shot in the plot; -1 if there is none.
    [[nodiscard]] int shownShot() const;

signals:
    /// The user changed a threshold.
    void thresholdsChanged();

public slots:
    /// Brings names, table and plot up to date with the model.
    void update();
    void updateTable();
    void updateOszi();
    void onCurrentRowChanged(const QModelIndex &current, const QModelIndex &previous);
    void onCellClicked(int row, int column);
    void onSensorButtonToggled();
    void onStartStopSpinBoxChanged();

protected:
    void refresh() override;
    void structureChanged() override;

private slots:
    void onTable_clicked(const QModelIndex &index);

private:
    void createLayout();
    void connectWidgets();

    [[nodiscard]] bool hasModel(const char *function) const;
    [[nodiscard]] RuntimeCriteria criteria() const;
    [[nodiscard]] RuntimeCache::Shots shotsOf(int sensor) const;
    [[nodiscard]] RuntimeThresholds &currentThresholds() { return m_thresholds[static_cast<size_t>(m_currentSensor)]; }
    void chooseShot(int row);
    void logThresholds(const char *function, const char *mark, int sensor) const;

    std::array<RuntimeThresholds, kNumSensors> m_thresholds{};
    std::array<RuntimeCache, kNumSensors> m_caches;
    int m_currentSensor = 0;
    int m_chosenShot = -1; // -1: follows the newest

    SensorSelection *m_sensors = nullptr;
    RuntimeTable *m_table = nullptr;
    RuntimePlot *m_plot = nullptr;
    ThresholdFields *m_thresholdFields = nullptr;
    RuntimeBoxPlots *m_boxPlots = nullptr;
};
