#pragma once

#include "model/model.h"
#include "plots/charts/capability.h"
#include "plots/evaluation/common/quantitycache.h"

#include <QObject>
#include <QPointer>

#include <functional>

/// A quantity of all shots of one sensor.
struct QuantitySeries
{
    std::vector<std::optional<double>> shots; ///< std::nullopt for a shot that lacks the quantity
    QVector<double> values;                   ///< of the shots that have it
};

/// What the pages of the evaluation share: the figures of all shots, computed once, and the settings that the project
/// stores for the evaluation. Computes nothing until it is asked.
class EvaluationData : public QObject
{
    Q_OBJECT

public:
    explicit EvaluationData(QObject *parent = nullptr);

    /// Not owned. Emits modelChanged() if it is another one.
    void setModel(Model *model);
    /// nullptr if none was set or if it has been deleted.
    [[nodiscard]] Model *model() const { return m_model; }

    /// All of these need a model and a sensor of 0 to 4.
    [[nodiscard]] int numShots(int sensor) const { return m_model->numChannels(sensor); }
    /// Recomputes only what has changed since the last call.
    [[nodiscard]] QuantitySeries series(int sensor, const Quantity &quantity);
    /// The name that the sensor has or is given by its position, and its unit; the unit may be empty.
    [[nodiscard]] QString sensorName(int sensor) const;
    [[nodiscard]] QString sensorUnit(int sensor) const;
    [[nodiscard]] QString quantityName(const Quantity &quantity) const;
    /// "bar", "bar·s", "s"
    [[nodiscard]] QString quantityUnit(int sensor, const Quantity &quantity) const;

    /// The columns of the table of values in the order of Quantity::all(); never empty.
    [[nodiscard]] QVector<Quantity> shownQuantities(int sensor) const;
    void setShown(int sensor, const Quantity &quantity, bool shown);
    /// One of those that are shown.
    [[nodiscard]] Quantity chosenQuantity(int sensor) const;
    /// The choice is stored with the project, but does not mark it as modified.
    void choose(int sensor, const Quantity &quantity);
    [[nodiscard]] ToleranceLimits limits(int sensor, const Quantity &quantity) const;
    /// Ignored if a limit is not finite.
    void setLimits(int sensor, const Quantity &quantity, const ToleranceLimits &limits);

    /// Seconds from the beginning of the previous shot to the beginning of this one; where a time stamp is missing or
    /// the later one is smaller, the length of the recording. std::nullopt if there is no such shot.
    [[nodiscard]] std::optional<double> cycleSeconds(int shot) const;

signals:
    void modelChanged();

private:
    [[nodiscard]] const SensorMeta &meta(int sensor) const;
    void edit(int sensor, const std::function<void(SensorMeta &meta)> &change);

    QPointer<Model> m_model;
    std::array<QuantityCache, kNumSensors> m_caches;
};

/// The name that a sensor of 0 to 4 has in the model or is given by its position; by its position without a model.
[[nodiscard]] QString sensorNameOf(const Model *model, int sensor);
/// A number as the pages write it: six significant digits, with the language's decimal separator.
[[nodiscard]] QString figureText(double value);
/// "1.67"; "∞" and "> 99" where digits would have no meaning; "–" for std::nullopt.
[[nodiscard]] QString capabilityText(const std::optional<double> &value);
