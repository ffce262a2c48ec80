#pragma once

/// Where the thumb of a scroll bar lies and which value a place stands for. In pixels along the bar, from its first
/// end; sound for every range and length, however large, small or empty.
struct QtMaterialScrollTrack
{
    enum class Part { Before, Thumb, After };

    int length = 0;     ///< of the bar
    int leastThumb = 0; ///< what a finger can take hold of; where the bar is short, half of it
    int minimum = 0;
    int maximum = 0;
    int page = 0;

    [[nodiscard]] bool isNeeded() const { return maximum > minimum && length > 0; }
    [[nodiscard]] int thumbLength() const;
    /// A value out of range counts as the nearest one within.
    [[nodiscard]] int thumbStart(int value) const;
    [[nodiscard]] Part partAt(int position, int value) const;
    /// The value for which the thumb starts there; that of the nearer end if it cannot.
    [[nodiscard]] int valueAt(int thumbStart) const;
};
