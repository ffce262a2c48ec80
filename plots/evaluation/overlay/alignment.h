#pragma once

#include <QVector>

#include <optional>

/// What the shots of an overlay are lined up by.
enum class AlignBy {
    Start,   ///< their first samples are drawn at the same place
    Marker,  ///< their values at a marker, which is at the same sample in every shot: there every curve becomes 0
    Rising,  ///< where they first reach a threshold from below
    Falling, ///< where they first reach it from above
};

/// True where the shots are lined up by a threshold that they cross.
[[nodiscard]] inline bool usesThreshold(AlignBy by)
{
    return by == AlignBy::Rising || by == AlignBy::Falling;
}

struct AlignmentRule
{
    AlignBy by = AlignBy::Start;
    double offset = 0.0;    ///< added to every sample first
    int marker = 0;         ///< sample index
    double threshold = 0.0; ///< value units
};

[[nodiscard]] bool operator==(const AlignmentRule &a, const AlignmentRule &b);

/// The first sample, from index `from` on, that has reached the threshold while the one before it was strictly on the
/// other side; -1 if there is none. A signal that begins at the threshold or beyond has to leave it first.
[[nodiscard]] int firstCrossing(const QVector<double> &samples, double offset, double threshold, bool rising,
                                int from = 1);

/// The sample that is drawn at the same place as those of the other shots; -1 for a shot that has none. Samples before
/// `from` were searched without success.
[[nodiscard]] int alignedSample(const QVector<double> &samples, const AlignmentRule &rule, int from = 1);

/// What is added to the values of a shot with this aligned sample, in addition to the offset.
[[nodiscard]] double alignedLift(const QVector<double> &samples, const AlignmentRule &rule, int aligned);

/// A curve and its sample that is drawn at the same place as those of the others.
struct AlignedCurve
{
    const QVector<double> *samples = nullptr;
    int aligned = 0;
    double lift = 0.0; ///< added to its values
};

/// The largest distance between two curves where both have a value.
struct Deviation
{
    std::optional<double> largest; ///< none where they do not overlap
    int compared = 0;              ///< samples of the first curve before this one were looked at
};

/// Continues where `before` ended: both curves may have grown since, and nothing else may have changed.
[[nodiscard]] Deviation deviation(const AlignedCurve &curve, const AlignedCurve &reference, const Deviation &before);
