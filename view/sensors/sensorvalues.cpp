#include "view/sensors/sensorvalues.h"

#include <algorithm>
#include <utility>

SensorValues::SensorValues()
    : m_now([this] { return m_elapsed.elapsed(); })
{
    m_elapsed.start();
}

void SensorValues::setTimeSource(std::function<qint64()> now)
{
    m_now = std::move(now);
}

void SensorValues::addSample(const std::array<double, kNumSensors> &values, int period)
{
    m_live.add(values, m_now(), period);
}

void SensorValues::forgetLive()
{
    m_live = {};
}

bool SensorValues::setRecorded(const PerChannel &values)
{
    return std::exchange(m_recorded, values) != values;
}

void SensorValues::resetAllHeld()
{
    for (int channel = 0; channel < kNumSensors; ++channel)
        m_live.resetHeld(channel);
}

// Digits that changed with every repaint could not be read, and those of the tree and of a tile must be the same.
void SensorValues::updateReadOut()
{
    for (int channel = 0; channel < kNumSensors; ++channel)
        m_readOut.at(static_cast<std::size_t>(channel)) = latest(channel);
}

bool SensorValues::isAny() const
{
    return isLive()
           || std::any_of(m_recorded.cbegin(), m_recorded.cend(), [](const auto &value) { return value.has_value(); });
}

std::optional<double> SensorValues::latest(int channel) const
{
    return isLive() ? m_live.latest(channel) : m_recorded.at(static_cast<std::size_t>(channel));
}

SensorReading SensorValues::reading(const SensorInfo &sensor) const
{
    SensorReading reading;
    if (sensor.channel < 0) // described by the box, but no value of it is sent
        return reading;
    std::optional<double> value = latest(sensor.channel);
    if (value)
        value = *value + sensor.offset;
    reading.status = sensorStatus(value, isFresh(), sensor.limits);
    reading.value = value.value_or(0.0);
    // Until the digits were updated for the first time they show the value itself.
    const std::optional<double> &readOut = m_readOut.at(static_cast<std::size_t>(sensor.channel));
    reading.readOut = readOut ? *readOut + sensor.offset : reading.value;
    reading.held = m_live.held(sensor.channel);
    if (reading.held)
        reading.held = HeldRange{reading.held->minimum + sensor.offset, reading.held->maximum + sensor.offset};
    return reading;
}
