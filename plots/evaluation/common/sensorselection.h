#pragma once

#include "model/sensordescription.h"

#include <QWidget>

#include <array>

class ColoredButton;
class Model;

/// One button a sensor in the sensor's colour, of which one is checked.
class SensorSelection : public QWidget
{
    Q_OBJECT

public:
    explicit SensorSelection(QWidget *parent = nullptr);

    /// 0 to 4.
    [[nodiscard]] int sensor() const;
    /// Ignored outside 0 to 4.
    void setSensor(int sensor);
    /// Shows the sensors' names and colours; nullptr: the names by position. Not kept.
    void showSensors(const Model *model);

signals:
    /// Of any way to switch.
    void sensorChanged(int sensor);

private slots:
    void onGroup_idToggled(int sensor, bool checked);

private:
    std::array<ColoredButton *, kNumSensors> m_buttons{};
};
