#pragma once

#include "kit/small/translatedwidget.h"
#include "model/sensordescription.h"
#include "plots/evaluation/overlay/alignment.h"

#include <array>

class Model;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;

/// The row of controls of the overlay: what the shots are lined up by, with a threshold for each sensor, and whether
/// their mean and a band around it are drawn.
class OverlayOptions final : public TranslatedWidget
{
    Q_OBJECT

public:
    explicit OverlayOptions(QWidget *parent = nullptr);

    /// Shows the threshold of a sensor of 0 to 4.
    void setSensor(int sensor);
    [[nodiscard]] AlignBy alignedBy() const;
    /// For the sensor that was set; offset and marker are the model's.
    [[nodiscard]] AlignmentRule rule(const Model &model) const;
    [[nodiscard]] bool showsMean() const;
    /// Half the width of the band; 0: no band.
    [[nodiscard]] double sigmas() const;

signals:
    /// The user chose another alignment or another threshold.
    void alignmentChanged();
    /// The user switched or changed mean or band.
    void meanChanged();

protected:
    void retranslateUi() override;

private slots:
    void onAlignment_changed();
    void onThreshold_changed();
    void onMean_changed();

private:
    void createAlignment();
    void createMean();
    void connectWidgets();
    void retranslateAlignments();

    std::array<double, kNumSensors> m_thresholds{};
    int m_sensor = 0;

    QLabel *m_label = nullptr;
    QComboBox *m_alignment = nullptr;
    QDoubleSpinBox *m_threshold = nullptr;
    QCheckBox *m_mean = nullptr;
    QCheckBox *m_band = nullptr;
    QDoubleSpinBox *m_sigmas = nullptr;
};
