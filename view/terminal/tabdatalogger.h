#pragma once

#include "model/sensordescription.h"

#include <QStringList>
#include <QWidget>

#include <array>
#include <memory>

/// The tab "Datenlogger": one line of text per sample, with a column for every sensor that is checked. Keeps the
/// newest kMaximumLines lines. Nothing is written, and a sample costs next to nothing, while no sensor is checked.
class TabDataLogger : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kMaximumLines = 5000;

    explicit TabDataLogger(QWidget *parent = nullptr);
    ~TabDataLogger() override;

    /// One text for each sensor; an empty or missing one becomes "Sensor 1" to "Sensor 5".
    void setSensorNames(const QStringList &names);
    void addSample(double seconds, const std::array<double, kNumSensors> &values);
    [[nodiscard]] bool isAnySensorChecked() const;
    /// Appends the headline of the sensors checked.
    void writeHeadline();
    void clear();
    /// All lines kept, those not shown yet included.
    [[nodiscard]] QString plainText();

signals:
    void clearRequested();
    /// The columns changed, so that the following lines need a new headline.
    void headlineRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void onSensorToggled();
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
