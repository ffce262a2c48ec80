#pragma once

#include "view/sensors/livevalues.h"
#include "view/sensors/sensorlist.h"
#include "view/sensors/sensorreading.h"

#include <QElapsedTimer>

#include <array>
#include <functional>
#include <optional>

/// The latest value of each channel: the one that the box sent, or the last recorded one until it sends something. Also
/// the values that digits show, which change less often.
class SensorValues
{
public:
    using PerChannel = std::array<std::optional<double>, kNumSensors>;

    SensorValues();
    Q_DISABLE_COPY_MOVE(SensorValues)

    /// Milliseconds of a clock that only goes forward, instead of the computer's.
    void setTimeSource(std::function<qint64()> now);

    /// What the box sent; it measures every `period` milliseconds.
    void addSample(const std::array<double, kNumSensors> &values, int period);
    /// As if the box had sent nothing yet; what was held is forgotten too.
    void forgetLive();
    /// The box has stopped sending: its values stay, but are no longer fresh.
    void expire() { m_live.expire(); }
    /// Takes the last recorded values. False if they are the same as before.
    bool setRecorded(const PerChannel &values);
    /// The next value of the channel begins a new held range. Ignores a channel that does not exist.
    void resetHeld(int channel) { m_live.resetHeld(channel); }
    void resetAllHeld();
    /// The digits show the latest values from now on.
    void updateReadOut();

    /// True if the box has sent something.
    [[nodiscard]] bool isLive() const { return !m_live.isEmpty(); }
    /// True if there is a value of at least one channel.
    [[nodiscard]] bool isAny() const;
    [[nodiscard]] bool isFresh() const { return m_live.isFresh(m_now()); }
    /// What the sensor shows now, with its offset.
    [[nodiscard]] SensorReading reading(const SensorInfo &sensor) const;

private:
    [[nodiscard]] std::optional<double> latest(int channel) const;

    LiveValues m_live;
    PerChannel m_recorded;
    PerChannel m_readOut;
    QElapsedTimer m_elapsed;
    std::function<qint64()> m_now;
};
