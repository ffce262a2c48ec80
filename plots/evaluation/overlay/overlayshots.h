#pragma once

#include "plots/evaluation/overlay/alignment.h"
#include "plots/evaluation/overlay/meanband.h"

#include <memory>
#include <utility>
#include <vector>

/// A shot of an overlay: its samples and the results that were computed from them.
struct OverlayShot
{
    quint64 id = 0;
    QVector<double> samples;
    bool isShared = false; ///< with the model's list; otherwise a copy to which new samples are appended

    // Results for the rule of the last refresh.
    int searched = 1;  ///< samples before this one were searched without success
    int aligned = -1;  ///< the sample that the shot is aligned by; -1: has none and is not drawn
    int shift = 0;     ///< index of the time axis at which sample 0 is drawn
    double lift = 0.0; ///< added to its values in addition to the offset
    Deviation apart;   ///< from the reference
    int ranged = 0;    ///< samples that `lowest` and `highest` cover
    double lowest = 0.0;
    double highest = 0.0;

    [[nodiscard]] bool isPlaced() const { return aligned >= 0; }
    [[nodiscard]] AlignedCurve curve() const { return {&samples, aligned, lift}; }
};

/// The shots of one sensor as an overlay needs them. Recomputes only what has changed: a shot is identified by its id,
/// and while the id is the same, samples are only appended.
///
/// Shares the lists that it is given, so that they survive their removal elsewhere; the last one, which may be growing,
/// is copied. A shot stays at its address until its id is removed.
class OverlayShots
{
public:
    struct Source
    {
        quint64 id = 0; ///< not 0; unique
        const QVector<double> *samples = nullptr;
    };
    using Shots = std::vector<std::unique_ptr<OverlayShot>>;

    /// Brings all shots up to date. `reference` is the id of the shot that the others are compared with; 0 for none.
    void refresh(const std::vector<Source> &sources, const AlignmentRule &rule, quint64 reference);
    /// Sets the shifts so that the aligned samples have the same index and none of the shots that are drawn begins
    /// before index 0.
    void place(const std::vector<bool> &isDrawn);
    /// Mean and band of the shots that are drawn, as they were placed.
    const MeanBand &meanOf(const std::vector<bool> &isDrawn);
    void clear();

    [[nodiscard]] const Shots &shots() const { return m_shots; }
    /// nullptr if there is none.
    [[nodiscard]] const OverlayShot *reference() const;
    /// Index of the time axis at which the aligned samples are drawn.
    [[nodiscard]] int alignedIndex() const { return m_alignedIndex; }
    /// How many samples were read since the last call, to align the shots and for the mean.
    [[nodiscard]] qint64 takeWork() { return std::exchange(m_work, 0); }

private:
    struct Averaged
    {
        quint64 id = 0;
        int shift = 0;
        double lift = 0.0;
        int count = 0;
    };

    void takeOver(const std::vector<Source> &sources);
    static void copySamples(OverlayShot &shot, const Source &source, bool mayGrow);
    void align(OverlayShot &shot);
    static void findRange(OverlayShot &shot);
    void compareAll(quint64 reference);

    Shots m_shots;
    AlignmentRule m_rule;
    AlignedCurve m_comparedTo; // the reference of the last refresh; the samples may no longer exist
    quint64 m_reference = 0;
    int m_alignedIndex = 0;
    MeanBand m_mean;
    std::vector<Averaged> m_averaged;
    qint64 m_work = 0;
};
