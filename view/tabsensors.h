#pragma once

#include <QWidget>

#include <memory>

class Model;

/// The tab "Sensoren": the latest value of each of the five sensors in large digits.
class TabSensors : public QWidget
{
    Q_OBJECT

public:
    explicit TabSensors(QWidget *parent = nullptr);
    ~TabSensors() override;

    void setModel(Model *model);
    /// Names, units and colours from the model.
    void updateDescription();
    /// The latest values; a dash for a sensor that has none.
    void updateValues();

protected:
    void changeEvent(QEvent *event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
