#pragma once

#include "model/sensordescription.h"
#include "plots/evaluation/common/modelpage.h"
#include "plots/evaluation/overlay/overlayshots.h"

#include <QColor>
#include <QHash>

#include <array>

class OverlayPlot;
class OverlayTableModel;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QItemSelection;
class QLabel;
class QLayout;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;
class ScrolledPlot;
class SensorSelection;

/// The evaluation page that draws the shots of one sensor over each other: lined up by their start, by their values at
/// a marker or by a threshold that they cross; with their mean and a band around it; and ranked by how far they are
/// from a reference.
///
/// Follows the model by itself, but only while it is shown, and at most every kRefreshInterval. The plot points at the
/// page's own copies of the shots, so that removed measurements are never drawn. Colours and ticks are the page's own,
/// and are kept as long as their shot is there; labels are kept by the model.
class TabEvaluationOverlay final : public ModelPage
{
    Q_OBJECT

public:
    explicit TabEvaluationOverlay(QWidget *parent = nullptr);
    ~TabEvaluationOverlay() override;

    using QWidget::update;

    /// Not owned. nullptr is logged and changes nothing.
    void setModel(Model *model);

    /// 0 to 4: the first checked sensor button, 0 if none is.
    [[nodiscard]] int currentSensor() const;
    /// The shot that the others are compared to; -1 if there is none.
    [[nodiscard]] int referenceShot() const;
    /// -1, or a shot that does not exist: none.
    void setReferenceShot(int shot);

public slots:
    /// Brings names, table and plot up to date with the model.
    void update();

protected:
    void refresh() override;
    void retranslateUi() override;
    void structureChanged() override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void onSensorButtonToggled();
    void onAlignmentChanged();
    void onThresholdChanged();
    void onMeanChanged();
    void onSelectionChanged();
    void onTable_shownEdited(int shot, bool shown);
    void onTable_colorEdited(int shot, const QColor &color);
    void onTable_labelEdited(int shot, const QString &label);
    void onButtonAll_clicked();
    void onButtonNone_clicked();
    void onButtonReference_clicked();

private:
    // What the user chose for a shot.
    struct Look
    {
        QColor color; // invalid: the one that belongs to its number
        bool isHidden = false;
    };

    // A slot of the plot as it was last set.
    struct Slot
    {
        quint64 id = 0;
        const OverlayShot *shot = nullptr;
        QRgb color = 0;
        bool isOnTop = false;
        int shift = 0;
        double lift = 0.0;
    };

    void createLayout();
    [[nodiscard]] QLayout *createOptions();
    void createTable();
    [[nodiscard]] QWidget *createTableSide();
    [[nodiscard]] QWidget *createPlot();
    void connectWidgets();
    void retranslateAlignments();

    [[nodiscard]] AlignmentRule rule() const;
    [[nodiscard]] bool usesThreshold() const;
    void forgetShots();
    void recompute();
    void refreshShots();
    [[nodiscard]] bool readKeys();
    void forgetRemovedLooks();
    [[nodiscard]] quint64 keyOf(int shot) const;
    [[nodiscard]] Look lookOf(int shot) const;
    [[nodiscard]] QColor colorOf(int shot) const;
    void setAllShown(bool shown);
    void toggleSelected();
    void showRows();
    void showStatus();
    [[nodiscard]] QString unplacedText(int count) const;
    void showThreshold();

    // The plot
    void showPlot();
    [[nodiscard]] std::vector<bool> shownShots() const;
    [[nodiscard]] std::vector<bool> selectedShots() const;
    [[nodiscard]] int currentShot() const;
    void showCurves(const std::vector<bool> &isShown);
    void showHighlighted(quint64 id);
    void setSlots(const std::vector<Slot> &wanted);
    void showReference();
    void showMean(const std::vector<bool> &isShown);
    void showLines();
    void fitValueRange(const std::vector<bool> &isDrawn);

    OverlayShots m_shots;
    std::vector<quint64> m_keys; // what each shot is known by, whatever the sensor
    QHash<quint64, Look> m_looks;
    quint64 m_reference = 0; // a key; 0: none
    std::array<double, kNumSensors> m_thresholds{};
    std::vector<Slot> m_slots;
    int m_currentSensor = 0;
    int m_longest = 0; // samples from the left edge to the end of the longest curve

    SensorSelection *m_sensors = nullptr;
    QLabel *m_labelAlignment = nullptr;
    QComboBox *m_comboAlignment = nullptr;
    QDoubleSpinBox *m_spinBoxThreshold = nullptr;
    QCheckBox *m_checkMean = nullptr;
    QCheckBox *m_checkBand = nullptr;
    QDoubleSpinBox *m_spinBoxSigmas = nullptr;
    QTableView *m_table = nullptr;
    OverlayTableModel *m_tableModel = nullptr;
    QSortFilterProxyModel *m_sorted = nullptr;
    QPushButton *m_buttonAll = nullptr;
    QPushButton *m_buttonNone = nullptr;
    QPushButton *m_buttonReference = nullptr;
    QLabel *m_status = nullptr;
    OverlayPlot *m_plot = nullptr;
    ScrolledPlot *m_scrolledPlot = nullptr;
};
