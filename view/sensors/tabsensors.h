#pragma once

#include "kit/small/throttle.h"
#include "view/sensors/sensorchoices.h"
#include "view/sensors/sensorvalues.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>

class Model;
class QSplitter;
class SensorEditor;
class SensorSide;
class SensorTreeModel;
class TilePage;

/// The tab "Sensoren": a tree of all sensors that are known, and a tile with the latest value of each that is checked
/// there. Shows what the box sends, recorded or not; before it has sent anything, the last recorded values.
///
/// However fast samples arrive, it repaints at most 20 times a second; while hidden it only keeps the held values.
/// Offsets are added to all values, as in the oscilloscope and the evaluation.
class TabSensors : public QWidget
{
    Q_OBJECT

public:
    explicit TabSensors(QWidget *parent = nullptr);

    /// Not owned; must outlive the tab.
    void setModel(Model *model);
    /// Names, units, colours, limits and offsets from the model. Check marks and kinds of display stay with the names.
    void updateDescription();
    /// The last recorded values, unless the box has sent some.
    void updateValues();
    /// What the box sent, which measures every `period` milliseconds; cheap enough for every sample line.
    void addSample(const std::array<double, kNumSensors> &values, int period);
    /// What the box sent does not fit what is described now: shows the last recorded values again, and nothing held.
    void forgetLiveValues();
    /// Milliseconds of a clock that only goes forward, instead of the computer's; for tests.
    void setTimeSource(std::function<qint64()> now);

signals:
    // What the user edited; it is shown once the model has it.
    void sensorNameEdited(int sensor, const QString &name);
    void sensorUnitEdited(int sensor, const QString &unit);
    void sensorColorEdited(int sensor, const QColor &color);
    /// SensorLimits::kNoLower and kNoUpper for a limit that is not set.
    void sensorLimitsEdited(int group, int sensor, double minimum, double maximum);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void layOut();
    void connectParts();
    void fitToWidth(int width);
    // Which sensors
    void showSensors(const SensorList &list);
    void showTiles();
    void showHint();
    [[nodiscard]] QString hintText() const;
    [[nodiscard]] const QVector<SensorInfo> &allSensors() const;
    // What they show
    void followLink();
    void scheduleTiles();
    void refreshTiles();
    void refreshTree();
    void refresh();
    void checkFreshness();
    void resetHeld(int sensor);

    Model *m_model = nullptr;
    SensorChoices m_choices;
    SensorValues m_values;
    Throttle m_repaint;   ///< bundles samples; runs only in sight
    QTimer m_statusTimer; ///< runs only in sight and while values are fresh
    QSplitter *m_splitter = nullptr;
    SensorSide *m_side = nullptr;
    TilePage *m_page = nullptr;
    SensorTreeModel *m_sensors = nullptr; ///< the side's
    SensorEditor *m_editor = nullptr;
};
