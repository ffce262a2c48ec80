#pragma once

#include "model/sensordescription.h"

#include <QWidget>

#include <array>

class ElidedLabel;
class QCheckBox;
class QPushButton;
class YCorrectionBox;

/// The head of the tab: which sensors are shown, the y correction, and the lock against changes by accident.
class OsziHead : public QWidget
{
    Q_OBJECT

public:
    explicit OsziHead(QWidget *parent = nullptr);

    [[nodiscard]] YCorrectionBox *yCorrection() const { return m_yCorrection; }
    [[nodiscard]] bool isLocked() const;
    /// The name of a sensor position, 0 to 4; "Sensor N" in the user's language if it is empty.
    void setSensorName(int position, const QString &name);

signals:
    void sensorToggled(int position, bool shown);
    void lockToggled(bool closed);

protected:
    void changeEvent(QEvent *event) override;

private:
    struct SensorSwitch
    {
        QCheckBox *box = nullptr;
        ElidedLabel *label = nullptr;
        QString name; ///< as in the sensor description
    };

    [[nodiscard]] QWidget *createSensorSwitch(int position, QWidget *parent);
    void createLock();
    void showLock();
    void retranslateUi();

    std::array<SensorSwitch, kNumSensors> m_sensors;
    YCorrectionBox *m_yCorrection = nullptr;
    QPushButton *m_lock = nullptr;
};
