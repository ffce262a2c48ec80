#pragma once

#include "model/project/unknownmembers.h"
#include "model/projectdata.h"
#include "model/sensordescription.h"
#include "model/verticalmarkers.h"

#include <QString>

#include <array>

/// The names of the phases of a cycle, in their order.
using PhaseNames = std::array<QString, kNumCyclePhases>;

/// All that the project file holds apart from samples and pictures.
struct ProjectSettings
{
    ProjectData data;
    QString comment;
    QString hardwareVersion; ///< of the box
    QString firmwareVersion; ///< of the box
    int mesotraType = 0;     ///< type code of the measuring hardware
    int clock = 100;         ///< sampling interval in milliseconds, 1 to kMaxClock
    SensorDescription sensors;
    std::array<double, kNumSensors> offsets{}; ///< added to the samples of a sensor where they are shown
    VerticalMarkers markers{};
    PhaseNames phaseNames;
    bool markersAbsolute = false; ///< whether the oscilloscope shows markers from the beginning of the shot
    /// Ranges of the oscilloscope's rows, which begin with what an empty plot shows.
    std::array<double, kNumSensors> osziMinimum{};
    std::array<double, kNumSensors> osziMaximum{255.0, 255.0, 255.0, 255.0, 255.0};
    // What another program has added to the file; written again.
    UnknownMembers unknown;
    UnknownMembers unknownInView; ///< among the settings of the oscilloscope

    static constexpr int kMaxClock = 3600000;
};
