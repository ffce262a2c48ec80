#pragma once

#include <QWidget>

#include <memory>

class Model;
class OsziWidget;

/// The tab "Oszilloskop": five stacked rows, one a sensor position, all measurements as curves, the newest highlighted.
class TabOszilloscope : public QWidget
{
    Q_OBJECT

public:
    explicit TabOszilloscope(QWidget *parent = nullptr);
    ~TabOszilloscope() override;

    void setModel(Model *model);
    /// Row 0 to 4; nullptr for any other.
    [[nodiscard]] OsziWidget *row(int position) const;
    /// Points curve slot i of every row at measurement i of its sensor, for i from 0 to the newest, marks the slots
    /// shown, makes the newest the highlighted curve and repaints. Works while signals are blocked.
    void pointSlotsAtModel();
    /// Empties every slot of every row.
    void clearSlots();
    /// The sampling period, and the largest clock grid offered (100 times the period).
    void setClock(int clock, int clockGrid);
    void setMaximumSensorRange(int group, int sensor, double min, double max);
    void setCurrentSensorRange(int group, int sensor, double min, double max);
    void setCheckBoxMarkerAbsolute(bool absolute);
    /// Empties the deletion field (after a deletion that worked).
    void clearDeletionField();

signals:
    void markerChangedAbsolute(int index, int pos_ms);
    void markerChangedRelative(int index, int pos_ms);
    void checkBoxMarkerAbsClicked(bool absolute);
    void deleteMeasurements(const QString &range);

public slots:
    void update();
    void updateOsziSlider();
    void displayAllMeas(bool state);
    void displayedMeasChanged();
    void highlightBoxChanged(int measurement);
    void autoYCorrectionClicked();
    void autoYCorrectionSpinBoxChanged(int milliseconds);
    void onCheckBoxMarkerAbsClicked(bool absolute);
    void onDeleteMeasurementClicked();
    void onMarkerChanged(double seconds);
    void onSpinBoxMaxValueChanged(double maxValue);
    void onSpinBoxMinValueChanged(double minValue);
    void onModel_projectChanged();
    void onModel_dataChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
