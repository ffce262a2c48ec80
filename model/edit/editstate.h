#pragma once

#include "model/blackbox/importedfiles.h"
#include "model/project/imagestore.h"
#include "model/project/projectmeta.h"
#include "model/projectsettings.h"

#include <QColor>

#include <array>
#include <optional>
#include <utility>

struct Project;

/// What of a project can be undone apart from its shots. Copying it is cheap: texts, lists and pictures are shared.
struct EditState
{
    using Range = std::pair<double, double>;

    ProjectData data;
    QString comment;
    int clock = 0;
    SensorDescription sensors;
    std::array<double, kNumSensors> offsets{};
    VerticalMarkers markers{};
    /// std::nullopt for a default name, which changes with the language.
    std::array<std::optional<QString>, kNumCyclePhases> phaseNames;
    bool markersAbsolute = false;
    std::array<Range, kNumSensors> ranges; ///< of the oscilloscope's rows
    std::array<SensorMeta, kNumSensors> evaluation;
    std::array<QColor, kNumSensors> colors;
    ImageStore images;
    ImportedFiles imported;
    QSet<QByteArray> fingerprints; ///< of imported files

    [[nodiscard]] static EditState of(const Project &project, const ImportedFiles &imported);
    /// Puts all of it into a project.
    void applyTo(Project &project, ImportedFiles &importedFiles) const;
    /// Gives the fields that differ between two states the value of the second one; leaves the others alone.
    void takeDifferences(const EditState &from, const EditState &to);
    [[nodiscard]] bool hasSameView(const EditState &other) const
    {
        return ranges == other.ranges && markersAbsolute == other.markersAbsolute;
    }
};

[[nodiscard]] bool operator==(const EditState &a, const EditState &b);
