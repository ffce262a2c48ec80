#include "simulator/mouldcycle.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kCavityPeak = 410.0;      // bar
constexpr double kCavityPlateau = 300.0;   // bar
constexpr double kInjectionPeak = 980.0;   // bar
constexpr double kHoldingPressure = 520.0; // bar
constexpr double kBackPressure = 65.0;     // bar, while the screw takes up material for the next shot
constexpr double kWallTemperature = 48.0;  // degrees Celsius, at the melt sensor without melt
constexpr double kMeltRise = 176.0;        // kelvin
constexpr double kMouldTemperature = 58.0; // degrees Celsius
constexpr double kMouldRise = 13.0;        // kelvin
constexpr double kOpenPosition = 320.0;    // mm
constexpr double kMeltArrival = 0.4;       // share of the injection after which melt reaches the cavity sensors

enum Quantity { PressureVariation, TemperatureVariation, InjectionVariation };

/// A hash of the input, so that noise needs no state.
quint64 mixed(quint64 x)
{
    // The constants and shifts of the SplitMix64 generator.
    x += 0x9E3779B97F4A7C15u;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
    return x ^ (x >> 31);
}

/// 0 to 1, from 53 bits.
double uniform(quint64 bits)
{
    return static_cast<double>(bits >> 11) / 9007199254740992.0;
}

/// From 0 to 1 while x goes from 0 to 1, level at both ends.
double smoothStep(double x)
{
    const double clamped = std::clamp(x, 0.0, 1.0);
    return clamped * clamped * (3.0 - 2.0 * clamped);
}

double share(double time, double begin, double end)
{
    return (time - begin) / (end - begin);
}

double decay(double time, double constant)
{
    return std::exp(-time / constant);
}

double injectionPressure(const PhaseEnds &ends, double time)
{
    const double fast = 0.02 * ends.opening;
    const auto holding = [&](double t) {
        return kHoldingPressure + (kInjectionPeak - kHoldingPressure) * decay(t - ends.injection, fast);
    };
    if (time < ends.closing)
        return 0.0;
    if (time < ends.injection) {
        const double x = share(time, ends.closing, ends.injection);
        return kInjectionPeak * (0.25 * smoothStep(6.0 * x) + 0.75 * x * x);
    }
    if (time < ends.holding)
        return holding(time);
    // After the holding phase the pressure is released; then the screw takes up material against the back pressure.
    const double x = share(time, ends.holding, ends.cooling);
    const double back = kBackPressure * (smoothStep(8.0 * (x - 0.1)) - smoothStep(8.0 * (x - 0.7)));
    return holding(ends.holding) * decay(time - ends.holding, fast) + back;
}

double meltArrival(const PhaseEnds &ends)
{
    return ends.closing + kMeltArrival * (ends.injection - ends.closing);
}

double cavityPressure(const PhaseEnds &ends, double time)
{
    const auto holding = [&](double t) {
        const double settled =
            kCavityPlateau + (kCavityPeak - kCavityPlateau) * decay(t - ends.injection, 0.05 * ends.opening);
        return settled * (1.0 - 0.18 * share(t, ends.injection, ends.holding)); // the gate freezes
    };
    if (time < meltArrival(ends))
        return 0.0;
    if (time < ends.injection)
        return kCavityPeak * std::pow(share(time, meltArrival(ends), ends.injection), 2.5);
    if (time < ends.holding)
        return holding(time);
    // The part shrinks away from the wall; before the mould opens nothing is left.
    const double x = share(time, ends.holding, ends.cooling);
    return holding(ends.holding) * std::exp(-5.0 * x) * (1.0 - smoothStep((x - 0.8) / 0.2));
}

/// Rises when the melt arrives and falls as the part cools: `rise` and `fall` are time constants in seconds.
double heatPulse(const PhaseEnds &ends, double time, double rise, double fall)
{
    const double since = std::max(0.0, time - meltArrival(ends));
    return (1.0 - decay(since, rise)) * decay(since, fall);
}

double openPosition(const PhaseEnds &ends, double time)
{
    return kOpenPosition
           * (1.0 - smoothStep(time / ends.closing) + smoothStep(share(time, ends.cooling, ends.opening)));
}

} // namespace

const std::array<SimulatedSensor, kNumSensors> &simulatedSensors()
{
    static const std::array<SimulatedSensor, kNumSensors> sensors{{
        {"Innendruck", "Druck", "bar", -10.0, 600.0, 0.8},
        {"Einspritzdruck", "Druck", "bar", -20.0, 1200.0, 2.0},
        {"Massetemperatur", "Temperatur",
         "\xC2\xB0"
         "C",
         0.0, 300.0, 0.35},
        {"Werkzeugtemperatur", "Temperatur",
         "\xC2\xB0"
         "C",
         0.0, 120.0, 0.08},
        {"Werkzeugweg", "Weg", "mm", -5.0, 350.0, 0.05},
    }};
    return sensors;
}

MouldCycle::MouldCycle(quint32 seed, double seconds)
    : m_seed(seed)
    , m_seconds(seconds > 0.0 ? seconds : 1.0)
{}

// -1 to 1, constant within a shot.
double MouldCycle::variation(int shot, int quantity) const
{
    const quint64 key = (static_cast<quint64>(m_seed) << 32) ^ static_cast<quint64>(static_cast<quint32>(shot));
    return 2.0 * uniform(mixed(mixed(key) + static_cast<quint64>(quantity))) - 1.0;
}

// The sum of twelve uniform numbers is close enough to a normal distribution and has no outliers.
double MouldCycle::noise(int shot, int sensor, double time) const
{
    const quint64 key = (static_cast<quint64>(m_seed) << 32) ^ static_cast<quint64>(static_cast<quint32>(shot));
    // In microseconds, so that equal times that were computed in different ways give the same noise.
    const auto moment = static_cast<quint64>(std::llround(time * 1e6));
    quint64 state = mixed(mixed(key) ^ mixed(moment) ^ (static_cast<quint64>(sensor) << 56));
    double sum = -6.0;
    for (int i = 0; i < 12; ++i) {
        state = mixed(state);
        sum += uniform(state);
    }
    return sum;
}

PhaseEnds MouldCycle::phaseEnds(int shot) const
{
    const double injection = 0.10 * (1.0 + 0.06 * variation(shot, InjectionVariation));
    return {0.12 * m_seconds, (0.12 + injection) * m_seconds, 0.47 * m_seconds, 0.86 * m_seconds, m_seconds};
}

SampleValues MouldCycle::idealValuesAt(int shot, double time) const
{
    const PhaseEnds ends = phaseEnds(shot);
    const double t = std::max(0.0, time);
    const double pressure = 1.0 + 0.04 * variation(shot, PressureVariation);
    const double warmth = 2.5 * variation(shot, TemperatureVariation);
    // Pressures end with the cycle, while temperatures go on falling.
    return {pressure * cavityPressure(ends, std::min(t, ends.opening)),
            pressure * injectionPressure(ends, std::min(t, ends.opening)),
            kWallTemperature + warmth + kMeltRise * heatPulse(ends, t, 0.012 * m_seconds, 0.24 * m_seconds),
            kMouldTemperature + 0.5 * warmth + kMouldRise * heatPulse(ends, t, 0.10 * m_seconds, 0.5 * m_seconds),
            openPosition(ends, t)};
}

SampleValues MouldCycle::valuesAt(int shot, double time) const
{
    SampleValues values = idealValuesAt(shot, time);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const auto i = static_cast<size_t>(sensor);
        values.at(i) += simulatedSensors().at(i).noise * noise(shot, sensor, std::max(0.0, time));
    }
    return values;
}
