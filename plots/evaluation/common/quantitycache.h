#pragma once

#include "plots/evaluation/common/shotquantity.h"

#include <vector>

/// The figures of all shots of one sensor. Knows a shot by a number that stays with it while its samples are only
/// appended to; so it keeps no samples and points at none.
class QuantityCache
{
public:
    struct Shot
    {
        quint64 id = 0; ///< differs from that of every other shot
        const QVector<double> *samples = nullptr;
    };
    using Shots = std::vector<Shot>;

    /// How many shots a refresh had to look at.
    struct Work
    {
        int scanned = 0;  ///< from their first sample
        int extended = 0; ///< their new samples only
    };

    /// Brings the figures up to date. Shots may have been removed anywhere and appended at the end; another order of
    /// those that stayed is right as well, but costs the work anew.
    Work refresh(const Shots &shots, const MarkerIndices &markers);

    /// As of the last refresh, one for each shot.
    [[nodiscard]] const std::vector<ShotFigures> &figures() const { return m_figures; }

private:
    void alignTo(const Shots &shots);

    MarkerIndices m_markers{};
    std::vector<quint64> m_ids; // as long as the figures
    std::vector<ShotFigures> m_figures;
};
