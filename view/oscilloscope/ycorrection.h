#pragma once

class OsziRows;
class SlotPointer;
class YCorrectionBox;

/// Shifts every curve so that it passes through zero at the time that the user chose.
class YCorrection
{
public:
    /// All three must outlive it.
    YCorrection(OsziRows &rows, YCorrectionBox &box, const SlotPointer &pointer);

    /// Shifts all curves, or takes their shifts back if the correction is off.
    void apply();
    /// The curves or the sampling period are others than before.
    void applyIfOn();
    /// Takes over another time, in milliseconds.
    void setTime(int milliseconds);
    /// Samples were appended: shifts the newest measurement as soon as it is long enough.
    void takeGrowth();

private:
    /// True if a curve has a sample at the chosen time.
    [[nodiscard]] bool reachesTime(int position, int slot) const;

    OsziRows &m_rows;
    YCorrectionBox &m_box;
    const SlotPointer &m_pointer;
    int m_uncorrectedNewest = -1; ///< the newest measurement while it has not reached the time; -1 otherwise
};
