#pragma once

#include "model/project/imagestore.h"
#include "model/project/namelist.h"
#include "model/project/samplerun.h"
#include "model/project/unknownmembers.h"
#include "model/sensordescription.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>
#include <optional>

/// The oscilloscope's view in a project file.
struct ProjectViewData
{
    /// What the file has under the key: nothing, no object, an object without members, or one with members.
    enum class Kind { Missing, NoObject, Empty, Given };

    Kind kind = Kind::Missing; ///< only Given is written
    std::optional<bool> markersAbsolute;
    std::optional<QVector<double>> osziMinimum;
    std::optional<QVector<double>> osziMaximum;
    UnknownMembers unknown{}; ///< sorted
};

/// What of a project file has no place among the fields of a project.
struct ProjectRest
{
    UnknownMembers unknown{};    ///< sorted; written again
    bool hasKnownKey = false;    ///< the file has at least one key of a project
    double numericVersion = 0.0; ///< a version that is a number, and so not taken as the fileVersion
    NameList lost;               ///< keys whose values are of another type than expected, or too large to be kept
};

/// What a project file holds, as it is read and as it is written; nothing in it has been checked for its meaning. A
/// field without a value is one that the file lacks, or has of another type; it is not written.
struct ProjectDocument
{
    static constexpr int kFileVersion = 7; ///< what is written

    std::optional<QString> fileVersion; ///< as it was read; what is written is always of the current version
    std::optional<QString> name;
    std::optional<QString> number;
    std::optional<QString> user;
    std::optional<QString> date;
    std::optional<QString> customer;
    std::optional<int> closingForce;
    std::optional<double> injectionTime;
    std::optional<double> pressTime;
    std::optional<int> pressure;
    std::optional<int> clock; ///< milliseconds per sample
    std::optional<QString> comment;
    std::optional<int> mesotraType;
    std::optional<QString> hardwareVersion;
    std::optional<QString> firmwareVersion;
    ProjectViewData viewData;
    EncodedImages images;
    std::array<std::optional<QString>, kNumSensors> sensorNames;
    std::array<std::optional<SampleRuns>, kNumSensors> samples;
    // Lists are as long as the file has them, up to some bound.
    std::optional<QVector<int>> markers;
    std::optional<QStringList> phases;
    std::optional<QVector<double>> corrections;
    std::optional<QVector<double>> sensorMinimum;
    std::optional<QVector<double>> sensorMaximum;

    ProjectRest rest;

    /// The work of writing the samples, in samples; each measurement counts as one more.
    [[nodiscard]] qint64 sampleCount() const;
};
