#pragma once

#include <QColor>
#include <QString>
#include <QVector>

/// Number of sensor channels that the program records; fixed, not taken from the device.
constexpr int kNumSensors = 5;

/// Default curve colour of a sensor position (0 to 4); an invalid colour for any other position.
[[nodiscard]] QColor defaultSensorColor(int position);

/// The name to show for a sensor, counted from 0 within its group: its own one, or "Sensor N" in the language in use.
[[nodiscard]] QString shownSensorName(const QString &ownName, int sensor);

/// One group of sensors. Indices count from 0; an index outside the group is logged and ignored, and the
/// getters then return an empty string, 0.0 or an invalid colour.
class SensorGroup
{
public:
    /// Grows by appending default entries; a shrink replaces all entries by n fresh ones. Negative counts as 0;
    /// the count is capped at kMaxSensors.
    void setNumSensors(int n);
    [[nodiscard]] int numSensors() const { return static_cast<int>(m_sensors.size()); }

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    [[nodiscard]] QString sensorName(int i) const;
    void setSensorName(int i, const QString &name);
    [[nodiscard]] QString sensorType(int i) const;
    void setSensorType(int i, const QString &type);
    [[nodiscard]] QString sensorUnit(int i) const;
    void setSensorUnit(int i, const QString &unit);
    /// The latest value; nothing uses it yet.
    [[nodiscard]] double sensorValue(int i) const;
    void setSensorValue(int i, double value);
    [[nodiscard]] double sensorMinimum(int i) const;
    void setSensorMinimum(int i, double minimum);
    [[nodiscard]] double sensorMaximum(int i) const;
    void setSensorMaximum(int i, double maximum);
    [[nodiscard]] QColor sensorColor(int i) const;
    void SetSensorColor(int i, const QColor &color); ///< nothing uses it yet

    static constexpr int kMaxSensors = 1000;
    static constexpr int kLongestUnit = 20; ///< characters; of one that is typed or read from a file

private:
    struct Sensor
    {
        QString name = QStringLiteral("Sensor X");
        QString type;
        QString unit;
        double value = 0.0;
        double minimum = -100000.0;
        double maximum = 100000.0;
        QColor color;
    };

    // nullptr, and a log line that names the caller, for an index outside the group.
    [[nodiscard]] const Sensor *find(int i, const char *function) const;
    [[nodiscard]] Sensor *find(int i, const char *function);

    QString m_name;
    QVector<Sensor> m_sensors;
};

/// The sensor groups that the device reports; in practice one group of five sensors.
class SensorDescription
{
public:
    /// Resizes the list of groups; new groups are empty. Negative counts as 0; capped at kMaxGroups.
    void setNumSensorGroups(int n);
    [[nodiscard]] int numSensorGroups() const { return static_cast<int>(m_groups.size()); }

    /// An index outside the list is logged; the reference is then to an empty group.
    [[nodiscard]] const SensorGroup &sensorGroup(int i) const;
    /// nullptr (and a log line) for an index outside the list.
    [[nodiscard]] SensorGroup *modifiableSensorGroup(int i);

    void setSensorMinimum(int group, int sensor, double minimum);
    void setSensorMaximum(int group, int sensor, double maximum);

    static constexpr int kMaxGroups = 1000;

private:
    QVector<SensorGroup> m_groups;
};

/// The name to show for a sensor of the first group; by its position if that has no such sensor.
[[nodiscard]] QString shownSensorName(const SensorDescription &description, int sensor);
