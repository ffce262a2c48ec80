#pragma once

#include "plots/evaluation/overlay/alignment.h"
#include "plots/evaluation/overlay/meanband.h"

#include <memory>
#include <utility>
#include <vector>

/// A shot of an overlay: its samples, and what was found out about them.
struct OverlayShot
{
    quint64 id = 0;
    QVector<double> samples;
    bool isShared = false; ///< with the list it was taken from; otherwise a copy that grows along

    // What follows belongs to the rule of the last refresh.
    int searched = 1;  ///< samples before this one do not have what the shot is aligned by
    int aligned = -1;  ///< the sample that stands over those of the other shots; -1: has none, and is not drawn
    int shift = 0;     ///< index of the time axis at which sample 0 stands
    double lift = 0.0; ///< added to its values, beside the offset
    Deviation apart;   ///< from the reference
    int ranged = 0;    ///< samples that `lowest` and `highest` are of
    double lowest = 0.0;
    double highest = 0.0;

    [[nodiscard]] bool isPlaced() const { return aligned >= 0; }
    [[nodiscard]] AlignedCurve curve() const { return {&samples, aligned, lift}; }
};

/// The shots of one sensor as an overlay needs them. Looks again only at what has changed: a shot is known by its id,
/// and while that is the same its samples are only appended to.
///
/// Shares the lists it is given, so that no list that is removed elsewhere is missed; the last one, which may be
/// growing, it copies. A shot stays at its address until its id is gone.
class OverlayShots
{
public:
    struct Source
    {
        quint64 id = 0; ///< not 0, and no id twice
        const QVector<double> *samples = nullptr;
    };
    using Shots = std::vector<std::unique_ptr<OverlayShot>>;

    /// Brings all shots up to date. `reference` is the id of the shot that the others are compared to; 0 for none.
    void refresh(const std::vector<Source> &sources, const AlignmentRule &rule, quint64 reference);
    /// Sets the shifts so that the aligned samples stand over each other and none of the shots that are drawn begins
    /// before index 0.
    void place(const std::vector<bool> &isDrawn);
    /// Mean and band of those shots, as placed.
    const MeanBand &meanOf(const std::vector<bool> &isDrawn);
    void clear();

    [[nodiscard]] const Shots &shots() const { return m_shots; }
    /// nullptr if there is none.
    [[nodiscard]] const OverlayShot *reference() const;
    /// Index on the time axis at which the aligned samples stand.
    [[nodiscard]] int alignedIndex() const { return m_alignedIndex; }
    /// Samples that were looked at for what the shots are aligned by, and for the mean, since the last call.
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
    AlignedCurve m_comparedTo; // the reference as of the last refresh; only its place is looked at
    quint64 m_reference = 0;
    int m_alignedIndex = 0;
    MeanBand m_mean;
    std::vector<Averaged> m_averaged;
    qint64 m_work = 0;
};
