#pragma once

#include "model/project/shotorigin.h"
#include "model/sensordescription.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QSet>
#include <QString>

#include <array>
#include <optional>
#include <vector>

class QIODevice;

/// What the evaluation knows of one quantity of one sensor. The model gives the key no meaning.
struct QuantityMeta
{
    QString key;
    bool isShown = false; ///< as a column of the table of values
    std::optional<double> lowerLimit;
    std::optional<double> upperLimit;
};

/// Settings of the evaluation of one sensor, in its unit.
struct SensorMeta
{
    double startThreshold = 0.0;
    double stopThreshold = 0.0;
    QString chosenQuantity;               ///< a key; empty for none
    std::vector<QuantityMeta> quantities; ///< no key twice
    QJsonObject others;                   ///< what another version of the program keeps here

    /// nullptr if the quantity has no settings.
    [[nodiscard]] const QuantityMeta *find(const QString &key) const;
    /// The settings of the quantity, which are appended if there are none.
    [[nodiscard]] QuantityMeta &at(const QString &key);
};

/// The unit of a sensor, and what the sensor was like that has it.
struct SensorUnit
{
    QString unit; ///< empty for none
    QString name;
    double minimum = 0.0;
    double maximum = 0.0;
};

/// What is kept of one shot beside its samples.
struct ShotMeta
{
    QString label;
    QDateTime timestamp;
    int period = 0;  ///< ms; 0 if unknown
    int missing = 0; ///< values of each sensor that never came
    QJsonObject others;
    ShotOrigin origin;
};

/// What belongs to a project but has no key in the project file; it is kept in a file beside it.
struct ProjectMeta
{
    static constexpr int kLongestLabel = 200; ///< characters

    std::array<SensorMeta, kNumSensors> sensors;
    std::vector<QString> labels;         ///< one per shot, from the first on; may be shorter than the list of shots
    std::vector<QDateTime> timestamps;   ///< the same; a null date-time for a shot without one
    std::vector<int> periods;            ///< the same; sampling periods in ms, 0 if unknown
    std::vector<int> missingValues;      ///< the same; how many values of each sensor never came
    std::vector<ShotOrigin> origins;     ///< the same; unknown for a shot that was not imported
    std::vector<QJsonObject> shotOthers; ///< the same; what another version of the program keeps
    QSet<QByteArray> importedFiles;      ///< fingerprints of logger files
    QJsonObject others;                  ///< what another version of the program keeps
    /// Filled only for and from a file: the project has the units in its description of the sensors.
    std::array<SensorUnit, kNumSensors> units;

    /// True if there is nothing that a file would have to keep.
    [[nodiscard]] bool isBlank() const;
    /// Empty for a shot without a label. `shot` is not negative, here and below.
    [[nodiscard]] QString label(int shot) const;
    /// Cuts the label after kLongestLabel characters.
    void setLabel(int shot, const QString &label);
    /// A null date-time for a shot without one.
    [[nodiscard]] QDateTime timestamp(int shot) const;
    void setTimestamp(int shot, const QDateTime &timestamp);
    /// Milliseconds; 0 if unknown.
    [[nodiscard]] int period(int shot) const;
    void setPeriod(int shot, int milliseconds);
    [[nodiscard]] ShotOrigin origin(int shot) const;
    void setOrigin(int shot, const ShotOrigin &origin);
    void setOthers(int shot, const QJsonObject &values);
    /// 0 for a shot that is complete, as far as that is known.
    [[nodiscard]] int missing(int shot) const;
    void setMissingValues(int shot, int count);
    [[nodiscard]] ShotMeta shot(int shot) const;
    /// All that the shots from there on have moves up.
    void insertShots(int first, const std::vector<ShotMeta> &shots);
    /// All that the shots behind have moves down.
    void removeShots(int first, int count);
    /// Drops what shots behind the first `count` have.
    void keepShots(int count);
    void clearShots() { keepShots(0); }
};

[[nodiscard]] bool operator==(const QuantityMeta &a, const QuantityMeta &b);
[[nodiscard]] bool operator==(const SensorMeta &a, const SensorMeta &b);
[[nodiscard]] bool operator==(const SensorUnit &a, const SensorUnit &b);
[[nodiscard]] bool operator==(const ProjectMeta &a, const ProjectMeta &b);

/// One number per shot, which tells whether it is still the shot that a label and a time stamp were written for.
using ShotChecks = std::vector<quint32>;

/// The name of the file beside a project file; of a link, beside the file that the link leads to.
[[nodiscard]] QString metaFileName(const QString &projectFile);

/// Writes the settings as JSON text: per shot its check and what it has. False if the device takes less than it
/// is given.
[[nodiscard]] bool writeProjectMeta(QIODevice &target, const ProjectMeta &meta, const ShotChecks &checks);

/// None if the device holds something else than settings of a version that is known, or more than kLargestMeta bytes.
/// Single values that make no sense are left out. What shots have is taken over only for those whose check is the one
/// given. May throw std::bad_alloc.
[[nodiscard]] std::optional<ProjectMeta> readProjectMeta(QIODevice &source, const ShotChecks &checks);
/// True for settings of a version that is not known yet.
[[nodiscard]] bool isNewerProjectMeta(QIODevice &source);
constexpr qint64 kLargestMeta = 32LL << 20;
