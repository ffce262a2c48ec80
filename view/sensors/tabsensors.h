#pragma once

#include "model/sensordescription.h"

#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class Model;
class QColor;

/// The tab "Sensoren": a tree of all sensors that are known, and a tile with the latest value of each that is checked
/// there. Shows what the box sends, recorded or not; before anything came the last recorded values.
///
/// However fast samples come, it repaints at most 20 times a second; hidden it only keeps the held values. Offsets are
/// added to all values, as in the oscilloscope and the evaluation.
class TabSensors : public QWidget
{
    Q_OBJECT

public:
    explicit TabSensors(QWidget *parent = nullptr);
    ~TabSensors() override;

    /// Not owned; must outlive the tab.
    void setModel(Model *model);
    /// Names, units, colours, limits and offsets from the model. Check marks and kinds of display stay with the names.
    void updateDescription();
    /// The last recorded values, unless the box has sent some.
    void updateValues();
    /// What the box sent, which measures every so many milliseconds; cheap enough for every sample line.
    void addSample(const std::array<double, kNumSensors> &values, int period);
    /// What the box sent does not go with what is described now: the last recorded values again, and nothing held.
    void forgetLiveValues();
    /// Milliseconds of a clock that only goes forward, instead of the computer's; for tests.
    void setTimeSource(std::function<qint64()> now);

signals:
    // What the user edited; it shows when the model has it.
    void sensorNameEdited(int sensor, const QString &name);
    void sensorColorEdited(int sensor, const QColor &color);
    /// SensorLimits::kNoLower and kNoUpper for a limit that is not set.
    void sensorLimitsEdited(int group, int sensor, double minimum, double maximum);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
