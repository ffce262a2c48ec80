#pragma once

#include <QColor>
#include <QFrame>

class QLabel;

/// One sensor: a bar in its colour, its name, its latest value in large digits, its unit.
class SensorPanel : public QFrame
{
    Q_OBJECT

public:
    explicit SensorPanel(QWidget *parent = nullptr);

    void setDescription(const QString &name, const QString &unit, const QColor &color);
    /// An unknown value is shown as a dash.
    void setValue(double value);
    void clearValue();

private:
    void show(const QString &text);

    QLabel *m_name = nullptr;
    QLabel *m_value = nullptr;
    QLabel *m_unit = nullptr;
    QColor m_color;
};
