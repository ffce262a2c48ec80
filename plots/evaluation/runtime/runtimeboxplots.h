#pragma once

#include "kit/small/translatedwidget.h"

#include <array>

class BoxWhiskersWidget;
class QLabel;
struct RuntimeSummary;

/// The three box plots of the start times, the durations and the stop times of all shots, each below its caption.
class RuntimeBoxPlots final : public TranslatedWidget
{
    Q_OBJECT

public:
    explicit RuntimeBoxPlots(QWidget *parent = nullptr);

    void set(const RuntimeSummary &summary);

protected:
    void retranslateUi() override;

private:
    static constexpr std::size_t kNumPlots = 3; // start, duration, stop

    std::array<QLabel *, kNumPlots> m_captions{};
    std::array<BoxWhiskersWidget *, kNumPlots> m_plots{};
};
