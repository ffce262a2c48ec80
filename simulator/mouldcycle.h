#pragma once

#include "model/sensordescription.h"

#include <QByteArray>

#include <array>

using SampleValues = std::array<double, kNumSensors>;

/// A sensor of the simulated box: its description, and the noise of its signal.
struct SimulatedSensor
{
    QByteArray name;
    QByteArray type;
    QByteArray unit; ///< UTF-8
    double minimum;  ///< in the unit; no simulated value is below it
    double maximum;
    double noise; ///< standard deviation, in the unit
};

/// Cavity pressure, injection pressure, melt and mould temperature, mould opening: the order of the values.
[[nodiscard]] const std::array<SimulatedSensor, kNumSensors> &simulatedSensors();

/// When the phases of one shot end, in seconds from its start.
struct PhaseEnds
{
    double closing = 0.0;
    double injection = 0.0;
    double holding = 0.0;
    double cooling = 0.0;
    double opening = 0.0;
};

/// The signals of an injection moulding cycle. A pure function of seed, shot and time: the same three give the same
/// values, noise included.
class MouldCycle
{
public:
    /// `seconds` is the length of a cycle; not positive counts as one second.
    MouldCycle(quint32 seed, double seconds);

    [[nodiscard]] double seconds() const { return m_seconds; }
    /// The phases of a shot; the injection takes a little longer or shorter every time.
    [[nodiscard]] PhaseEnds phaseEnds(int shot) const;
    /// After the end of the cycle the mould stays open and cools down. A time below 0 counts as 0.
    [[nodiscard]] SampleValues valuesAt(int shot, double time) const;
    /// Without the noise.
    [[nodiscard]] SampleValues idealValuesAt(int shot, double time) const;

private:
    [[nodiscard]] double variation(int shot, int quantity) const;
    [[nodiscard]] double noise(int shot, int sensor, double time) const;

    quint32 m_seed;
    double m_seconds;
};
