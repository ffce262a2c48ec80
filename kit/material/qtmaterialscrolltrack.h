#pragma once

/// Where the thumb of a scroll bar is, and which value belongs to a position. In pixels along the bar from its
/// beginning; safe for every range and length, however large, small or empty.
struct QtMaterialScrollTrack
{
    enum class Part { Before, Thumb, After };

    int length = 0;     ///< of the bar
    int leastThumb = 0; ///< large enough for a finger; at most half of a short bar
    int minimum = 0;
    int maximum = 0;
    int page = 0;

    [[nodiscard]] bool isNeeded() const { return maximum > minimum && length > 0; }
    [[nodiscard]] int thumbLength() const;
    /// A value outside the range is clamped to it.
    [[nodiscard]] int thumbStart(int value) const;
    [[nodiscard]] Part partAt(int position, int value) const;
    /// The value for which the thumb starts there; clamped to the range.
    [[nodiscard]] int valueAt(int thumbStart) const;
};
