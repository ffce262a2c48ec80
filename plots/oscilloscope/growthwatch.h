#pragma once

#include "kit/small/throttle.h"

#include <functional>
#include <vector>

class CurveSlots;

/// Notices which curves have become longer. Looking at all slots costs more than painting a few new samples, so the
/// slots that are expected to grow are looked at immediately and the others a little later.
class GrowthWatch
{
public:
    /// Called for each curve that has grown, with the number of samples that it had before.
    using Grown = std::function<void(int slot, int oldCount)>;

    /// The slots must outlive this object and keep their number.
    GrowthWatch(const CurveSlots &curves, Grown grown);

    /// A slot got another list or lost it: its present samples are no growth.
    void setKnown(int slot);
    /// The samples that all curves have now are no growth.
    void setAllKnown();
    /// All slots were emptied.
    void forget();
    /// Samples were appended somewhere. Looks at the highlighted slot, the top-most one and those that grew recently;
    /// at all others within 200 milliseconds.
    void look(int highlighted);

private:
    void lookAt(int slot);
    void lookAtAll();

    const CurveSlots &m_curves;
    Grown m_grown;
    std::vector<int> m_knownCounts;  ///< samples of each slot when last looked at
    std::vector<int> m_growingSlots; ///< the last few that grew
    int m_topSlot = -1;              ///< no slot above it holds a curve
    Throttle m_sweep;
};
