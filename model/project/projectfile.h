#pragma once

#include "model/projectdata.h"
#include "model/samplelist.h"
#include "model/sensordescription.h"
#include "model/verticalmarkers.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <array>
#include <optional>
#include <vector>

class Pacer;
class QIODevice;

constexpr int kNumProjectPhases = 5;
constexpr int kNumProjectImages = 5;

/// The first samples of a list that may grow, and so move its samples, while it is written.
struct SampleRun
{
    const SampleList *samples = nullptr; ///< not owned; stays at its address
    int count = 0;
};

/// What a project file holds, ready to be written.
struct ProjectDocument
{
    ProjectData data;
    int clock = 0; ///< milliseconds a sample
    QString comment;
    int mesotraType = 0;
    QString hardwareVersion;
    QString softwareVersion;
    bool markersAbsolute = false;
    std::array<double, kNumSensors> osziMinimum{};
    std::array<double, kNumSensors> osziMaximum{};
    std::array<QByteArray, kNumProjectImages> images; ///< PNG; empty for none
    std::array<QString, kNumSensors> sensorNames;
    std::array<std::vector<SampleRun>, kNumSensors> samples;
    VerticalMarkers markers{};
    std::array<QString, kNumProjectPhases> phases;
    std::array<double, kNumSensors> corrections{};
    std::array<double, kNumSensors> sensorMinimum{};
    std::array<double, kNumSensors> sensorMaximum{};

    [[nodiscard]] qint64 sampleCount() const;
};

/// Writes the document as JSON text, in the form of QJsonDocument's indented one, while the pacer counts samples.
/// False as soon as the device takes less than it is given.
[[nodiscard]] bool writeProject(QIODevice &target, const ProjectDocument &document, Pacer &pacer);

/// What was found in a project file. Nothing in it has been checked for its meaning.
struct ProjectContent
{
    using Measurements = std::vector<SampleList>;

    /// Values of the known keys apart from the samples: QString, double, bool, QVariantList, QVariantMap or invalid
    /// for null. Lists and maps are cut after 64 elements, what is nested deeper is left out.
    QVariantMap fields;
    /// Nothing where the key is missing or no array.
    std::array<std::optional<Measurements>, kNumSensors> measurements;
};

/// Reads JSON text while the pacer counts bytes. Nothing if the text is not one valid JSON object or cannot be read
/// to its end. Of a key given twice the last one counts. Throws std::bad_alloc if the samples do not fit into memory.
[[nodiscard]] std::optional<ProjectContent> readProject(QIODevice &source, Pacer &pacer);

/// Position N of the keys "sensor N", "sensorName N" is counted from 0 here.
[[nodiscard]] QString sensorNameKey(int sensor);
[[nodiscard]] QString imageKey(int image);
