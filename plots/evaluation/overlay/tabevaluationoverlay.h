#pragma once

#include "plots/evaluation/common/modelpage.h"
#include "plots/evaluation/overlay/overlaylooks.h"
#include "plots/evaluation/overlay/overlayshots.h"

class OverlayOptions;
class OverlayShotList;
class OverlayTable;
class ScrolledOverlay;
class SensorSelection;

/// The evaluation page that draws the shots of one sensor over each other: lined up by their start, by their values at
/// a marker or by a threshold that they cross; with their mean and a band around it; and ranked by how far they are
/// from a reference.
///
/// Owns copies of the shots, at which the plot points, so that removed measurements are never drawn, and what the user
/// chose for each shot; labels are stored in the model.
class TabEvaluationOverlay final : public ModelPage
{
    Q_OBJECT

public:
    explicit TabEvaluationOverlay(QWidget *parent = nullptr);

    using QWidget::update;

    /// Not owned. nullptr is logged and changes nothing.
    void setModel(Model *model);

    /// 0 to 4: the first checked sensor button, 0 if none is.
    [[nodiscard]] int currentSensor() const;
    /// The shot that the others are compared with; -1 if there is none.
    [[nodiscard]] int referenceShot() const;
    /// -1, or a shot that does not exist: none.
    void setReferenceShot(int shot);

public slots:
    /// Brings names, table and plot up to date with the model.
    void update();

protected:
    void refresh() override;
    void structureChanged() override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void onSensorButtonToggled();
    void onOptions_alignmentChanged();
    void onOptions_meanChanged();
    void onTable_choiceChanged();
    void onTable_toggleWanted();
    void onTable_shownEdited(int shot, bool shown);
    void onTable_colorEdited(int shot, const QColor &color);
    void onTable_labelEdited(int shot, const QString &label);
    void onList_allWanted(bool shown);
    void onList_referenceWanted();

private:
    void createLayout();
    void connectWidgets();

    void recompute();
    void forgetShots();
    void refreshShots();
    [[nodiscard]] OverlayLooks::Keys readKeys() const;
    [[nodiscard]] quint64 keyOf(int shot) const;
    [[nodiscard]] int numShots() const { return static_cast<int>(m_shots.shots().size()); }
    [[nodiscard]] int currentShot() const;
    void showRows();
    void showStatus();
    void showPlot();

    OverlayShots m_shots;
    OverlayLooks m_looks;
    int m_currentSensor = 0;

    SensorSelection *m_sensors = nullptr;
    OverlayOptions *m_options = nullptr;
    OverlayTable *m_table = nullptr;
    OverlayShotList *m_list = nullptr;
    ScrolledOverlay *m_plot = nullptr;
};
