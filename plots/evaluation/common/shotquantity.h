#pragma once

#include "model/verticalmarkers.h"

#include <QString>
#include <QVector>

#include <array>
#include <optional>

/// One number that a shot of a sensor is judged by: its value at a marker, or a figure over the whole shot or over one
/// of its phases.
struct Quantity
{
    enum class Kind { AtMarker, Minimum, Maximum, Mean, Integral, PeakTime };
    static constexpr int kNumKinds = 6;
    static constexpr int kNumMarkers = kNumVerticalMarkers;
    static constexpr int kNumPhases = kNumCyclePhases;
    static constexpr int kWholeShot = 0;

    Kind kind = Kind::Maximum;
    /// For a value at a marker the marker, 0 to 3; else 0 for the whole shot, or 1 to 5 for a phase.
    int part = kWholeShot;

    /// A name to be stored in files: "marker2", "maximum", "mean.phase3".
    [[nodiscard]] QString key() const;
    /// None for a text that is no key.
    [[nodiscard]] static std::optional<Quantity> fromKey(const QString &key);
    /// All quantities, kind by kind.
    [[nodiscard]] static const QVector<Quantity> &all();
};

[[nodiscard]] bool operator==(const Quantity &a, const Quantity &b);
[[nodiscard]] inline bool operator!=(const Quantity &a, const Quantity &b)
{
    return !(a == b);
}

/// Sample indices in non-decreasing order. Phase 1 ends before the first marker, phase 2 begins with its sample, and so
/// on; phase 5 goes from the last marker to the end of the shot. Together the phases are the shot.
using MarkerIndices = std::array<int, Quantity::kNumMarkers>;

/// The figures of a shot's samples, without the sensor's offset, from which every quantity can be computed.
struct ShotFigures
{
    struct Part
    {
        int count = 0;
        double minimum = 0.0;
        double maximum = 0.0;
        double sum = 0.0;
        int peakIndex = 0; ///< of the first of the largest samples

        void add(double value, int index);
        /// Adds a part that follows this one in time.
        void add(const Part &next);
    };

    int count = 0; ///< samples that the figures cover
    std::array<Part, Quantity::kNumPhases> phases;
    std::array<std::optional<double>, Quantity::kNumMarkers> atMarker;

    /// Takes in the samples that were appended since the last call. The markers must be the same as then.
    void extend(const QVector<double> &samples, const MarkerIndices &markers);
    [[nodiscard]] Part whole() const;
};

/// What turns figures of samples into quantities.
struct QuantityScale
{
    double offset = 0.0; ///< is added to every sample
    int clock = 100;     ///< milliseconds per sample
};

/// None if the shot has no sample in that part, or none at the marker. Times are seconds from the beginning of the
/// shot, an integral is in seconds times the sensor's unit: each sample counts for one clock.
[[nodiscard]] std::optional<double> valueOf(const Quantity &quantity, const ShotFigures &figures,
                                            const QuantityScale &scale);
