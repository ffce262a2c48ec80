#pragma once

#include "model/samplelist.h"
#include "model/sensordescription.h"
#include "plots/evaluation/common/modelpage.h"
#include "plots/evaluation/runtime/runtime.h"

#include <QModelIndex>

#include <array>
#include <optional>

class BoxWhiskersWidget;
class OsziWidget;
class QDoubleSpinBox;
class QLabel;
class QLayout;
class QTableView;
class RuntimeTableModel;
class ScrolledPlot;
class SensorSelection;

/// The evaluation page of the runtimes: for one sensor, when each shot first falls below a start threshold and when it
/// last lies below a stop threshold, as a table, as three box plots, and drawn for the chosen shot.
///
/// Follows the model by itself, but only while it is shown, and at most every kRefreshInterval. Its plot points at the
/// page's own copy of the chosen shot, so that removed measurements are never drawn. Until a row is chosen, the newest
/// shot is shown.
class TabEvaluationRuntime final : public ModelPage
{
    Q_OBJECT

public:
    explicit TabEvaluationRuntime(QWidget *parent = nullptr);
    ~TabEvaluationRuntime() override;

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
    void retranslateUi() override;
    void structureChanged() override;
    void showEvent(QShowEvent *event) override;

private slots:
    void onTable_clicked(const QModelIndex &index);

private:
    static constexpr int kNumSummaries = 3; // start, duration, stop

    void createLayout();
    [[nodiscard]] QLayout *createSummaries();
    [[nodiscard]] QDoubleSpinBox *createThresholdSpinBox(const QString &name);
    void createTable();
    void fitColumns();
    void createPlot();
    void connectWidgets();

    [[nodiscard]] bool hasModel(const char *function) const;
    [[nodiscard]] RuntimeCriteria criteria() const;
    [[nodiscard]] RuntimeCache::Shots shotsOf(int sensor) const;
    void recompute();
    void chooseShot(int row);
    void followNewestShot();
    void logThresholds(const char *function, const char *mark, int sensor) const;
    void showThresholds();
    void showSummaries(const std::vector<ShotRuntime> &results);

    // The plot
    [[nodiscard]] bool copyShownShot();
    [[nodiscard]] ShotRuntime shownRuntime() const;
    void showThresholdLines();
    void fitValueRange();

    struct Thresholds
    {
        double start = 0.0;
        double stop = 0.0;
    };

    // Which of the model's lists the copy was taken from, and the smallest and largest sample copied so far.
    struct ShownShot
    {
        int sensor = -1;
        int shot = -1;
        quint64 revision = 0;
        SampleList samples;
        std::optional<std::pair<double, double>> range;
    };

    std::array<Thresholds, kNumSensors> m_thresholds{};
    std::array<RuntimeCache, kNumSensors> m_caches;
    int m_currentSensor = 0;
    int m_chosenShot = -1;  // -1: follows the newest
    int m_longestCount = 0; // samples of the sensor's longest shot
    ShownShot m_shown;

    SensorSelection *m_sensors = nullptr;
    QDoubleSpinBox *m_spinBoxStartValue = nullptr;
    QDoubleSpinBox *m_spinBoxStopValue = nullptr;
    QLabel *m_labelStartValue = nullptr;
    QLabel *m_labelStopValue = nullptr;
    QTableView *m_table = nullptr;
    RuntimeTableModel *m_tableModel = nullptr;
    std::array<QLabel *, kNumSummaries> m_summaryCaptions{};
    std::array<BoxWhiskersWidget *, kNumSummaries> m_summaries{};
    OsziWidget *m_osziWidget = nullptr;
    ScrolledPlot *m_scrolledPlot = nullptr;
};
