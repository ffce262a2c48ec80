#pragma once

#include "view/sensors/sensorlist.h"

#include <QDialog>

class ColoredButton;
class LimitField;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Name, unit, colour and limits of one sensor. Show it with open(); what was entered is read after accepted().
class SensorDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SensorDialog(const SensorInfo &sensor, QWidget *parent = nullptr);

    /// As it was given, with what the user changed; its limits are in order.
    [[nodiscard]] SensorInfo sensor() const;

private:
    void createFields();
    void createTexts();
    void showUnit();
    void layOut();
    void nameFields();
    void takeColor(const QColor &color);
    void check();
    [[nodiscard]] SensorLimits enteredLimits() const;
    [[nodiscard]] QString complaint() const;

    SensorInfo m_before;
    QColor m_color;
    SensorLimits m_shownLimits;
    QLineEdit *m_name = nullptr;
    QLineEdit *m_unit = nullptr;
    ColoredButton *m_colorButton = nullptr;
    LimitField *m_lower = nullptr;
    LimitField *m_upper = nullptr;
    QLabel *m_hint = nullptr;
    QPushButton *m_ok = nullptr;
    QPushButton *m_cancel = nullptr;
};
