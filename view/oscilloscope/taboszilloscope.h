#pragma once

#include <QWidget>

#include <memory>

class Model;
class OsziWidget;

/// The tab "Oszilloskop": five rows, one per sensor position, all measurements as curves, the newest highlighted. A
/// face: its parts do the work, see the widgets and helpers beside it.
///
/// setModel() connects the model's signals; nobody else need forward them. onModel_dataChanged() may be called for
/// every sample line: see SlotPointer for what it does then. Nothing that the model reports makes the tab emit a
/// signal.
class TabOszilloscope : public QWidget
{
    Q_OBJECT

public:
    explicit TabOszilloscope(QWidget *parent = nullptr);
    ~TabOszilloscope() override;

    /// The model is not owned and may go first; nullptr leaves the tab empty.
    void setModel(Model *model);
    /// Row 0 to 4; nullptr for any other.
    [[nodiscard]] OsziWidget *row(int position) const;
    /// Points curve slot i of every row at measurement i of its sensor, for i from 0 to the newest, marks the slots
    /// shown, makes the newest the highlighted curve and repaints. For callers that keep the model's signals blocked.
    void pointSlotsAtModel();
    /// Empties every slot of every row.
    void clearSlots();
    /// The sampling period, and the largest clock grid offered (100 times the period).
    /// A clock below 1 is ignored.
    void setClock(int clock, int clockGrid);
    /// The sampling periods on offer while a box is connected, as labels: "100ms" means 100 milliseconds.
    void setSamplingPeriods(const QStringList &labels);
    /// Limits of a row's range boxes / the range shown, which the model keeps as well. Only group 0 exists; ends that
    /// are not in order are ignored. Nothing in the program sets limits yet.
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
    /// The user moved the curves of a row, 0 to 4, in its box.
    void offsetEdited(int position, double offset);
    /// The user gave a row another range in its boxes; the model has it already. Wheel, pointer and keys in the plot
    /// only look around: they are silent.
    void rangeEdited();
    /// The user wants this sampling period; the tab keeps showing the one in force until setClock().
    void samplingPeriodChosen(const QString &label);

public slots:
    /// Repaints the rows and shows the names of the sensors. Nothing in the program calls it yet.
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
    void onModel_viewDataChanged();

private:
    void connectRows();
    void connectMarkers();
    void connectMeasurements();

    struct Private;
    std::unique_ptr<Private> d;
};
