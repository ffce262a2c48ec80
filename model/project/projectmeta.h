#pragma once

#include "model/project/shotorigin.h"
#include "model/sensordescription.h"

#include <QDateTime>
#include <QString>

#include <array>
#include <optional>
#include <vector>

class QByteArray;
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

    /// nullptr if the quantity has no settings.
    [[nodiscard]] const QuantityMeta *find(const QString &key) const;
    /// The settings of the quantity, which are appended if there are none.
    [[nodiscard]] QuantityMeta &at(const QString &key);
};

/// What belongs to a project but has no key in the project file; it is kept in a file beside it.
struct ProjectMeta
{
    static constexpr int kLongestLabel = 200; ///< characters

    std::array<SensorMeta, kNumSensors> sensors;
    std::vector<QString> labels;       ///< one per shot, from the first on; may be shorter than the list of shots
    std::vector<QDateTime> timestamps; ///< the same; a null date-time for a shot without one
    std::vector<ShotOrigin> origins;   ///< the same; unknown for a shot that was not imported

    /// True if there is nothing that a file would have to keep.
    [[nodiscard]] bool isBlank() const;
    /// Empty for a shot without a label. `shot` is not negative, here and below.
    [[nodiscard]] QString label(int shot) const;
    /// Cuts the label after kLongestLabel characters.
    void setLabel(int shot, const QString &label);
    /// A null date-time for a shot without one.
    [[nodiscard]] QDateTime timestamp(int shot) const;
    void setTimestamp(int shot, const QDateTime &timestamp);
    [[nodiscard]] ShotOrigin origin(int shot) const;
    void setOrigin(int shot, const ShotOrigin &origin);
    /// Labels, time stamps and origins of the shots behind move down by one.
    void removeShot(int shot);
    /// Drops labels, time stamps and origins behind the first `count` shots.
    void keepShots(int count);
    void clearShots() { keepShots(0); }
};

[[nodiscard]] bool operator==(const QuantityMeta &a, const QuantityMeta &b);
[[nodiscard]] bool operator==(const SensorMeta &a, const SensorMeta &b);
[[nodiscard]] bool operator==(const ProjectMeta &a, const ProjectMeta &b);

/// One number per shot, which tells whether it is still the shot that a label and a time stamp were written for.
using ShotChecks = std::vector<quint32>;

/// The name of the file beside a project file.
[[nodiscard]] QString metaFileName(const QString &projectFile);

/// Writes the settings as JSON text: per shot its check, label and time stamp. False if the device takes less than it
/// is given.
[[nodiscard]] bool writeProjectMeta(QIODevice &target, const ProjectMeta &meta, const ShotChecks &checks);

/// None if the device holds something else than settings of a version that is known, or more than kLargestMeta bytes.
/// Single values that make no sense are left out. Labels and time stamps are taken over only for shots whose check is
/// the one given. May throw std::bad_alloc.
[[nodiscard]] std::optional<ProjectMeta> readProjectMeta(QIODevice &source, const ShotChecks &checks);
constexpr qint64 kLargestMeta = 16LL << 20;
