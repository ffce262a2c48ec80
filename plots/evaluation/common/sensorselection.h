#pragma once

#include "model/sensordescription.h"

#include "kit/small/translatedwidget.h"

#include <QPointer>

#include <array>

class ColoredButton;
class Model;
class ModelPage;

/// One button per sensor in the sensor's colour, exactly one of them checked. Names and colours follow the model of the
/// page.
class SensorSelection : public TranslatedWidget
{
    Q_OBJECT

public:
    /// Belongs to the page and takes names and colours from the page's model whenever the page refreshes.
    explicit SensorSelection(ModelPage *page);

    /// 0 to 4.
    [[nodiscard]] int sensor() const;
    /// Ignored outside 0 to 4.
    void setSensor(int sensor);

signals:
    /// Emitted whether the user or the program switched.
    void sensorChanged(int sensor);

protected:
    void retranslateUi() override;

private slots:
    void onPage_refreshing(const Model *model);
    void onGroup_idToggled(int sensor, bool checked);

private:
    QPointer<const Model> m_model; // nullptr: sensors are named by their position
    std::array<ColoredButton *, kNumSensors> m_buttons{};
};
