#pragma once

#include "plots/evaluation/common/shotquantity.h"

#include <vector>

/// The figures of all shots of one sensor. Identifies a shot by a number that stays the same while samples are only
/// appended to it, so that it needs neither copies of samples nor pointers to them.
class QuantityCache
{
public:
    struct Shot
    {
        quint64 id = 0; ///< unique
        const QVector<double> *samples = nullptr;
    };
    using Shots = std::vector<Shot>;

    /// How many shots a refresh had to read.
    struct Work
    {
        int scanned = 0;  ///< from their first sample
        int extended = 0; ///< their new samples only
    };

    /// Brings the figures up to date. Shots may have been removed anywhere and appended at the end; another order of
    /// the others gives correct results, too, but all of them are computed again.
    Work refresh(const Shots &shots, const MarkerIndices &markers);

    /// As of the last refresh, one per shot.
    [[nodiscard]] const std::vector<ShotFigures> &figures() const { return m_figures; }

private:
    void alignTo(const Shots &shots);

    MarkerIndices m_markers{};
    std::vector<quint64> m_ids; // as long as the figures
    std::vector<ShotFigures> m_figures;
};
