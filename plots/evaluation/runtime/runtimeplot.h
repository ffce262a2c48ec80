#pragma once

#include "model/samplelist.h"
#include "plots/evaluation/common/scrolledplot.h"
#include "plots/evaluation/runtime/runtime.h"

#include <optional>

class Model;
class OsziWidget;

/// Draws one shot with the two thresholds and with lines where the shot was found to start and stop. Draws its own copy
/// of the samples, so that it never points at removed ones.
class RuntimePlot final : public ScrolledPlot
{
    Q_OBJECT

public:
    explicit RuntimePlot(QWidget *parent = nullptr);

    /// Draws a shot of the sensor, or no curve if the shot is -1. The results are those of all shots of the sensor; the
    /// time axis has room for the longest.
    void showShot(const Model &model, int sensor, int shot, const RuntimeCriteria &criteria,
                  const std::vector<ShotRuntime> &results);
    /// The next shot is copied from its first sample, even if it seems to be the same.
    void forgetShot();

private:
    RuntimePlot(OsziWidget *osziWidget, QWidget *parent);
    [[nodiscard]] bool copySamples(const Model &model, int sensor, int shot);
    [[nodiscard]] ShotRuntime shownRuntime(const RuntimeCriteria &criteria,
                                           const std::vector<ShotRuntime> &results) const;
    void showLines(const RuntimeCriteria &criteria, const ShotRuntime &found, int clock);
    void fitValueRange(const RuntimeCriteria &criteria);

    // Which of the model's lists the copy was taken from, and the smallest and largest sample copied so far.
    struct Shown
    {
        int sensor = -1;
        int shot = -1;
        quint64 revision = 0;
        SampleList samples;
        std::optional<std::pair<double, double>> range;
    };

    OsziWidget *m_osziWidget;
    Shown m_shown;
};
