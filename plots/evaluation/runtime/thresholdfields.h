#pragma once

#include "kit/small/translatedwidget.h"
#include "plots/evaluation/runtime/runtime.h"

class QDoubleSpinBox;
class QLabel;

/// The two spin boxes in which the user edits the start and the stop threshold of one sensor.
class ThresholdFields final : public TranslatedWidget
{
    Q_OBJECT

public:
    explicit ThresholdFields(QWidget *parent = nullptr);

    [[nodiscard]] RuntimeThresholds thresholds() const;
    /// Does not emit edited().
    void setThresholds(const RuntimeThresholds &thresholds);
    /// The thresholds moved into the range that can be edited.
    [[nodiscard]] static RuntimeThresholds bounded(const RuntimeThresholds &thresholds);

signals:
    /// The user changed one of the two.
    void edited();

protected:
    void retranslateUi() override;

private:
    [[nodiscard]] QDoubleSpinBox *createSpinBox(const QString &name);

    QLabel *m_startLabel = nullptr;
    QLabel *m_stopLabel = nullptr;
    QDoubleSpinBox *m_startSpinBox = nullptr;
    QDoubleSpinBox *m_stopSpinBox = nullptr;
};
